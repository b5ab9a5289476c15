#pragma once

#include "interchange/layout/LayoutGraph.h"

namespace vantrel {

/// Draws a graph from left to right in layers, with few crossings and without overlaps: the method of Sugiyama, Tagawa and Toda (Methods
/// for Visual Understanding of Hierarchical System Structures, 1981). Components are drawn one below the other, the one with
/// the start on top. Bend points lead edges over several layers past the nodes between. The same graph always gives the same drawing.
///
/// Takes well under a second for some thousand nodes and seconds for a hundred thousand. Throws std::out_of_range for an edge or a start
/// that is no node.
LayoutResult ArrangeInLayers(const LayoutGraph& pobjGraph);

}  // namespace vantrel

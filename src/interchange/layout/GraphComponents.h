#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "interchange/layout/LayoutGraph.h"

namespace vantrel {

/// A connected component of a graph, with numbers of its own for its nodes.
struct GraphComponent {
  std::vector<std::int32_t> Nodes;       // their numbers in the whole graph, rising
  std::vector<LayoutEdge> Edges;         // between the component's own numbers
  std::vector<std::size_t> EdgeNumbers;  // their numbers in the whole graph
  std::optional<std::int32_t> Start;     // the component's own number
};

/// The connected components: first the one with the start, then by the lowest node. Throws std::out_of_range for an edge or a start that is
/// no node.
std::vector<GraphComponent> ComponentsOf(const LayoutGraph& pobjGraph);

}  // namespace vantrel

#pragma once

#include <vector>

#include "interchange/layout/LayerGraph.h"

namespace vantrel {

/// The y of every vertex's centre, in twips and whole pixels, for a graph whose layers are ordered. Neighbours in a layer keep their order
/// and their distance, long edges run straight, and vertices stand at the middle of their neighbours where that is possible: Brandes, Köpf:
/// Fast and Simple Horizontal Coordinate Assignment, 2001, with the blocks compacted as CompactBlocks says. pcolHeights holds the height of
/// each vertex, psngGap the room between two nodes; joints keep half of it.
std::vector<double> AssignRows(const LayerGraph& pobjGraph, const std::vector<double>& pcolHeights, double psngGap);

}  // namespace vantrel

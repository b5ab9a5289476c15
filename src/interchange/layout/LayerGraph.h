#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "interchange/layout/LayoutGraph.h"

namespace vantrel {

using LayerIndex = std::int32_t;
using VertexIndex = std::int32_t;

/// A graph dealt out to layers so that every edge leads from one layer to the next. Vertices below NodeCount are the graph's nodes, the
/// others are joints: an edge over several layers has one in each layer that it crosses.
struct LayerGraph {
  std::int32_t NodeCount = 0;
  std::vector<LayerIndex> LayerOf;                 // each vertex
  std::vector<std::vector<VertexIndex>> Layers;    // from left to right, each from top to bottom
  std::vector<std::vector<VertexIndex>> Left;      // neighbours of each vertex in the layer before
  std::vector<std::vector<VertexIndex>> Right;     // neighbours of each vertex in the layer after
  std::vector<std::vector<VertexIndex>> JointsOf;  // each edge's, from its source to its target

  bool IsJoint(VertexIndex plngVertex) const { return plngVertex >= NodeCount; }
};

/// Deals the nodes of a graph out to layers. Edges that close a cycle of a depth-first walk from the start count as turned round; then each
/// node goes as far left as its edges let it (longest path), and back to the right where that shortens more edges than it stretches. The
/// order within the layers is that of the walk. Joints are limited to a few for every node and edge: beyond that the longest edges have
/// none.
LayerGraph DealOutToLayers(std::int32_t plngNodeCount, const std::vector<LayoutEdge>& pcolEdges, std::optional<std::int32_t> pobjStart);

}  // namespace vantrel

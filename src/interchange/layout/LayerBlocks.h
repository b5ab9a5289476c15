#pragma once

#include <vector>

#include "interchange/layout/LayerDistances.h"
#include "interchange/layout/LayerGraph.h"

namespace vantrel {

/// Vertices in neighbouring layers that are to share a row.
struct LayerBlocks {
  std::vector<std::vector<VertexIndex>> Layers;  // in the order that rows grow in, which may be the reverse of the graph's
  std::vector<VertexIndex> Root;                 // the vertex that stands for each one's block
};

/// A row for every vertex, the same within a block: first as near to 0 as the distances allow, then where the block's edges are shortest,
/// as far as its neighbours leave room. The blocks must not cross each other.
std::vector<double> CompactBlocks(const LayerGraph& pobjGraph, const LayerBlocks& pobjBlocks, const LayerDistances& pobjDistances);

}  // namespace vantrel

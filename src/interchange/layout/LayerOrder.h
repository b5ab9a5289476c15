#pragma once

#include "interchange/layout/LayerGraph.h"

namespace vantrel {

/// Changes the order within the layers so that few edges cross: sweeps to and fro that put each vertex at the middle of its neighbours
/// (barycentre and median in turn; Gansner, Koutsofios, North, Vo: A Technique for Drawing Directed Graphs, 1993), and in graphs of up to a
/// few thousand vertices exchanges of neighbours. The number of sweeps shrinks as the graph grows. Keeps the best order seen.
void ReduceCrossings(LayerGraph& pobjGraph);

/// How many pairs of edges cross.
std::int64_t CountCrossings(const LayerGraph& pobjGraph);

}  // namespace vantrel

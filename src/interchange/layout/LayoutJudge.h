#pragma once

#include <optional>
#include <vector>

#include "interchange/layout/LayoutGraph.h"

namespace vantrel {

/// True when a file's positions make no drawing, so that one has to be made: a node has none, or more than half of the nodes lie on a spot
/// that they share with others. pcolPositions holds a point of each node, in any unit; psngSpot is the side of a spot in that unit, well
/// below a node's size, since some editors draw one operator as several transitions on one spot and nodes may lie close together.
bool NeedsLayout(const std::vector<std::optional<LayoutPoint>>& pcolPositions, float psngSpot);

}  // namespace vantrel

#pragma once

#include <optional>
#include <vector>

#include "interchange/layout/LayoutGraph.h"

namespace vantrel {

/// True when a file's positions make no drawing: a node has no position, or more than half of the nodes share their spot with others.
/// pcolPositions holds a point of each node, in any unit. psngSpot is the side of a spot in that unit. It must be well below the size of
/// a node, because nodes may lie close together.
bool NeedsLayout(const std::vector<std::optional<LayoutPoint>>& pcolPositions, float psngSpot);

}  // namespace vantrel

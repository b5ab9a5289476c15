// Where a chart's contents lie.
#pragma once

#include <optional>

#include "chart/Geometry.h"

namespace vantrel {

class ChartSurface;

/// The rectangle round all visible elements, twips; nothing for an empty chart. Looks at every element.
std::optional<Rect> ContentBounds(const ChartSurface& pobjSurface);

}  // namespace vantrel

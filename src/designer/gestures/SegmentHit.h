// Lines of arcs under the pointer.
#pragma once

#include <memory>

#include "chart/ChartSurface.h"

namespace vantrel {

/// How far beside a line a press still hits it, twips, at any coordinates.
constexpr float kHitTolerance = 4 * kTwipsPerPixel;

/// True when a press hits a line by the relative rule: up to 2 per cent of the coordinate beside it, within its extent.
bool HitsSegment(const Line& pobjLine, float psngX, float psngY);

/// The segment that a press hits, or null: the first, by index, within kHitTolerance; otherwise the first by the relative rule, which
/// alone would reach far on a large chart. Takes time in proportion to the elements near the point.
std::shared_ptr<Line> SegmentAt(const ChartSurface& pobjChart, float psngX, float psngY);

}  // namespace vantrel

// Lines of arcs under the pointer.
#pragma once

#include <memory>

#include "chart/ChartSurface.h"

namespace vantrel {

/// How far beside a line a press still takes it, twips, whatever its coordinates.
constexpr float kHitTolerance = 4 * kTwipsPerPixel;

/// Whether a press takes a line by the relative rule: 2 per cent of the coordinate beside it, within its extent.
bool HitsSegment(const Line& pobjLine, float psngX, float psngY);

/// The segment that a press takes, or null: the first, by index, of those within kHitTolerance; otherwise the first by the
/// relative rule, which alone would reach far on a large chart. Costs what lies near the point.
std::shared_ptr<Line> SegmentAt(const ChartSurface& pobjChart, float psngX, float psngY);

}  // namespace vantrel

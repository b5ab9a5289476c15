// What lies before all elements of the chart.
#pragma once

class QPainter;

namespace vantrel {

class FocusFrame;
class SelectionRectangle;
struct ViewTransform;

/// Paints the rubber band and the focus frame where they are visible, in the same pixels at every zoom. Their damaged
/// rectangles have to be widened by kFrameReach.
void PaintSelection(QPainter& pobjPainter, const SelectionRectangle& pobjSelection, const ViewTransform& pobjTransform);
void PaintFocusFrame(QPainter& pobjPainter, const FocusFrame& pobjFrame, const ViewTransform& pobjTransform);

constexpr int kFrameReach = 4;  ///< device-independent pixels beyond the chart's own rectangle

}  // namespace vantrel

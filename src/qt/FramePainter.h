// Paints what lies in front of all elements of the chart.
#pragma once

class QPainter;

namespace vantrel {

class FocusFrame;
class SelectionRectangle;
struct ViewTransform;

/// Paint the rubber band and the focus frame if they are visible, with lines of the same width at every zoom. Widen their damaged
/// rectangles by kFrameReach.
void PaintSelection(QPainter& pobjPainter, const SelectionRectangle& pobjSelection, const ViewTransform& pobjTransform);
void PaintFocusFrame(QPainter& pobjPainter, const FocusFrame& pobjFrame, const ViewTransform& pobjTransform);

constexpr int kFrameReach = 4;  ///< device-independent pixels beyond the chart's own rectangle

}  // namespace vantrel

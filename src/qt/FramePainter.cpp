#include "qt/FramePainter.h"

#include <QPainter>
#include <QPen>
#include <algorithm>

#include "designer/FocusFrame.h"
#include "designer/SelectionRectangle.h"
#include "qt/ChartInk.h"
#include "qt/ViewTransform.h"

namespace vantrel {

namespace {

constexpr QColor kHalo(255, 255, 255, 190);  // between the dashes, for dark charts
constexpr QColor kBandFill(0x1d, 0x4e, 0xd8, 28);
constexpr double kOutlineGap = 2;
constexpr double kSmallestHandle = 6, kLargestHandle = 12;  // device-independent pixels, whatever the zoom

void PaintFrame(QPainter& pobjPainter, const QRectF& pobjBox, Qt::PenStyle pStyle) {
  pobjPainter.setBrush(Qt::NoBrush);
  pobjPainter.setPen(QPen(kHalo, 1));
  pobjPainter.drawRect(pobjBox);
  pobjPainter.setPen(QPen(kAccent, 1, pStyle));
  pobjPainter.drawRect(pobjBox);
}

QRectF OnPixels(const QRectF& pobjBox) { return QRectF(pobjBox.toAlignedRect()).translated(0.5, 0.5); }

QRectF HandleBox(const QRectF& pobjHandle) {
  const double side = std::clamp(pobjHandle.width(), kSmallestHandle, kLargestHandle);
  return {pobjHandle.center() - QPointF(side, side) / 2, QSizeF(side, side)};
}

}  // namespace

void PaintSelection(QPainter& pobjPainter, const SelectionRectangle& pobjSelection, const ViewTransform& pobjTransform) {
  if (!pobjSelection.Visible()) return;
  const QRectF box = OnPixels(pobjTransform.ToView(pobjSelection.Area()));
  pobjPainter.fillRect(box, kBandFill);
  PaintFrame(pobjPainter, box, Qt::DashLine);
}

void PaintFocusFrame(QPainter& pobjPainter, const FocusFrame& pobjFrame, const ViewTransform& pobjTransform) {
  if (!pobjFrame.Visible()) return;
  if (!pobjFrame.ShowsHandles()) {
    const QRectF outline = pobjTransform.ToView(pobjFrame.Outline());
    return PaintFrame(pobjPainter, OnPixels(outline.adjusted(-kOutlineGap, -kOutlineGap, kOutlineGap, kOutlineGap)), Qt::DotLine);
  }
  for (int handle = 0; handle < FocusFrame::kHandles; ++handle) {
    pobjPainter.setPen(QPen(kAccent, 1));
    pobjPainter.setBrush(Qt::white);
    pobjPainter.drawRect(OnPixels(HandleBox(pobjTransform.ToView(pobjFrame.Handle(handle)))).adjusted(0, 0, -1, -1));
  }
}

}  // namespace vantrel

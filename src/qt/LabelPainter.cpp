#include "qt/LabelPainter.h"

#include <QColor>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "chart/Label.h"
#include "qt/ChartInk.h"
#include "qt/Conversions.h"

namespace vantrel {

namespace {

// Two sides of a frame, each as a filled strip: a pen would paint on both sides of the box's edge.
void PaintCorner(QPainter& pobjPainter, const QRectF& pobjBox, double pdblWidth, const QColor& pobjColor, bool pblnTopLeft) {
  const double x = pblnTopLeft ? pobjBox.left() : pobjBox.right() - pdblWidth;
  const double y = pblnTopLeft ? pobjBox.top() : pobjBox.bottom() - pdblWidth;
  pobjPainter.fillRect(QRectF(pobjBox.left(), y, pobjBox.width(), pdblWidth), pobjColor);
  pobjPainter.fillRect(QRectF(x, pobjBox.top(), pdblWidth, pobjBox.height()), pobjColor);
}

// Two shades of one colour: white light on a white ground, or black shade on a black one, would be invisible.
void PaintBevel(QPainter& pobjPainter, const QRectF& pobjBox, double pdblWidth, bool pblnSunken, bool pblnOnDark) {
  const QColor shade = pblnOnDark ? QColor(255, 255, 255, 55) : QColor(0, 0, 0, 140);
  const QColor light = pblnOnDark ? QColor(255, 255, 255, 170) : QColor(0, 0, 0, 45);
  PaintCorner(pobjPainter, pobjBox, pdblWidth, pblnSunken ? light : shade, false);
  PaintCorner(pobjPainter, pobjBox, pdblWidth, pblnSunken ? shade : light, true);
}

}  // namespace

void PaintLabelBox(QPainter& pobjPainter, const Label& pobjLabel, const QRectF& pobjBox, double pdblScale, bool pblnOnDark) {
  const bool hasBorder = pobjLabel.BorderStyle() != 0, isRaised = pobjLabel.Appearance() == 1;
  if (pobjLabel.BackStyle() == 1) pobjPainter.fillRect(pobjBox, ToQColor(pobjLabel.BackColor()));
  const double line = std::max(1.0, std::round(pdblScale));
  if (isRaised) {
    PaintBevel(pobjPainter, pobjBox, std::max(line, std::round(1.5 * pdblScale)), hasBorder, pblnOnDark);
  } else if (hasBorder) {
    const QColor color = InkOn(pobjLabel.ForeColor(), pblnOnDark);
    PaintCorner(pobjPainter, pobjBox, line, color, false);
    PaintCorner(pobjPainter, pobjBox, line, color, true);
  }
}

}  // namespace vantrel

// How a label looks round its text.
#pragma once

#include <QRectF>

class QPainter;

namespace vantrel {

class Label;

/// Paints a label's background, border and bevel into a box given in the painter's units. The scale is the size of a chart
/// pixel in these units; `pblnOnDark` tells what shows through a transparent label. Inside the box only; nothing for a plain
/// transparent label.
void PaintLabelBox(QPainter& pobjPainter, const Label& pobjLabel, const QRectF& pobjBox, double pdblScale, bool pblnOnDark);

}  // namespace vantrel

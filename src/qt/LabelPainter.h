// Paints a label without its text.
#pragma once

#include <QRectF>

class QPainter;

namespace vantrel {

class Label;

/// Paints a label's background, border and bevel inside a box given in the painter's units. `pdblScale` is the size of a chart pixel in
/// these units; `pblnOnDark` says whether the ground of a transparent label is dark. Paints nothing for a plain transparent label.
void PaintLabelBox(QPainter& pobjPainter, const Label& pobjLabel, const QRectF& pobjBox, double pdblScale, bool pblnOnDark);

}  // namespace vantrel

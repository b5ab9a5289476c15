#include "qt/ChartPainter.h"

#include "chart/ChartSurface.h"
#include "qt/PaintPass.h"

namespace vantrel {

void ChartPainter::Paint(QPainter& pobjPainter, const ChartSurface& pobjSurface, const Rect& pobjArea, double pdblZoom) {
  if (!pobjSurface.Visible()) return;
  const auto elements = pobjSurface.ElementsIn(pobjArea);
  PaintPass pass(pobjPainter, mPictures, mLayouts, pdblZoom, pobjSurface.BackColor());
  for (const Element* element : elements) pass.Paint(*element);
}

}  // namespace vantrel

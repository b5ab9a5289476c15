#include "qt/ChartPainter.h"

#include "chart/ChartSurface.h"
#include "qt/PaintPass.h"

namespace vantrel {

void ChartPainter::Paint(QPainter& pobjPainter, const ChartSurface& pobjSurface, const Rect& pobjArea, double pdblZoom) {
  if (!pobjSurface.Visible()) return;
  PaintPass(pobjPainter, mPictures, mLayouts, pdblZoom, pobjSurface.BackColor()).Paint(pobjSurface.ElementsIn(pobjArea));
}

}  // namespace vantrel

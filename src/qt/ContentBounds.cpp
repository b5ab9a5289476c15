#include "qt/ContentBounds.h"

#include "chart/ChartSurface.h"

namespace vantrel {

namespace {

template <class E>
void Add(const ElementFamily<E>& pobjFamily, std::optional<Rect>& pobjBounds) {
  for (std::int32_t i = 0; i <= pobjFamily.UpperBound(); ++i) {
    const auto element = pobjFamily.At(i);
    if (!element || !element->Visible()) continue;
    const Rect box = element->Bounds();
    pobjBounds = pobjBounds ? pobjBounds->United(box) : box;
  }
}

}  // namespace

std::optional<Rect> ContentBounds(const ChartSurface& pobjSurface) {
  std::optional<Rect> bounds;
  Add(pobjSurface.ctlImage, bounds);
  Add(pobjSurface.ctlLabel, bounds);
  Add(pobjSurface.lblCount, bounds);
  Add(pobjSurface.ctlLine, bounds);
  Add(pobjSurface.ctlHandle, bounds);
  return bounds;
}

}  // namespace vantrel

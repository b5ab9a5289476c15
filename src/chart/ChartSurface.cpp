#include "chart/ChartSurface.h"

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

constexpr float kEverything = 1e12F;

}  // namespace

ChartSurface::ChartSurface()
    : mMeasure(std::make_shared<BuiltInTextMeasure>()),
      ctlImage(*this, ctlImageFamily),
      ctlLabel(*this, ctlLabelFamily),
      lblCount(*this, lblCountFamily),
      ctlLine(*this, ctlLineFamily),
      ctlHandle(*this, ctlHandleFamily) {
  const float handle = 6 * kTwipsPerPixel;
  ctlHandle.Template().Resize(handle, handle);
}

ChartSurface::~ChartSurface() {
  ctlImage.Detach();
  ctlLabel.Detach();
  lblCount.Detach();
  ctlLine.Detach();
  ctlHandle.Detach();
}

void ChartSurface::Adopt(Element& pobjElement, ElementFamilyId pFamily, std::int32_t plngIndex) {
  pobjElement.mSurface = this;
  pobjElement.mFamily = pFamily;
  pobjElement.mIndex = plngIndex;
  pobjElement.mZOrder = ++mFront;
}

void ChartSurface::ElementChanged(Element& pobjElement, const Rect& pobjBefore, bool pblnWasVisible, bool pblnIsVisible) {
  if (!pblnWasVisible && !pblnIsVisible) return;
  const Rect after = pobjElement.Bounds();
  const bool moved = pblnWasVisible != pblnIsVisible || pobjBefore != after;
  if (moved && pblnWasVisible) mGrid.Remove(&pobjElement, pobjBefore);
  if (moved && pblnIsVisible) mGrid.Insert(&pobjElement, after);
  if (pblnWasVisible) OnDamaged.Raise(pobjBefore);
  if (pblnIsVisible && (moved || !pblnWasVisible)) OnDamaged.Raise(after);
}

void ChartSurface::BringToFront(Element& pobjElement) {
  if (pobjElement.mZOrder == mFront) return;
  pobjElement.mZOrder = ++mFront;
  if (pobjElement.Visible()) OnDamaged.Raise(pobjElement.Bounds());
}

void ChartSurface::Unload(Element& pobjElement) {
  if (pobjElement.Index() == 0) return;
  const std::shared_ptr<Element> keeper = pobjElement.shared_from_this();
  pobjElement.Visible(false);
  pobjElement.mSurface = nullptr;
  const std::int32_t index = pobjElement.Index();
  switch (pobjElement.Family()) {
    case ctlImageFamily:
      return ctlImage.Remove(index);
    case ctlLabelFamily:
      return ctlLabel.Remove(index);
    case lblCountFamily:
      return lblCount.Remove(index);
    case ctlLineFamily:
      return ctlLine.Remove(index);
    case ctlHandleFamily:
      return ctlHandle.Remove(index);
  }
}

std::vector<Element*> ChartSurface::ElementsIn(const Rect& pobjArea) const {
  std::vector<Element*> found;
  mGrid.Collect(pobjArea, found);
  std::erase_if(found, [&](const Element* element) { return !element->Bounds().Touches(pobjArea); });
  std::sort(found.begin(), found.end(), [](const Element* a, const Element* b) { return a->ZOrder() < b->ZOrder(); });
  return found;
}

Element* ChartSurface::ElementAt(float psngX, float psngY, float psngTolerance) const {
  const Rect around{psngX - psngTolerance, psngY - psngTolerance, psngX + psngTolerance, psngY + psngTolerance};
  Element* nearest = nullptr;
  for (Element* element : ElementsIn(around)) {
    const float tolerance = element->Family() == ctlLineFamily ? psngTolerance : 0;
    if (element->Covers(psngX, psngY, tolerance)) nearest = element;
  }
  return nearest;
}

void ChartSurface::Scale(float psngWidth, float psngHeight) {
  mScaleWidth = psngWidth;
  mScaleHeight = psngHeight;
}

void ChartSurface::Origin(float psngLeft, float psngTop) {
  mScaleLeft = psngLeft;
  mScaleTop = psngTop;
}

void ChartSurface::BackColor(Color plngColor) {
  if (std::exchange(mBackColor, plngColor) == plngColor) return;
  OnDamaged.Raise({-kEverything, -kEverything, kEverything, kEverything});
}

void ChartSurface::Visible(bool pblnOn) {
  if (std::exchange(mVisible, pblnOn) == pblnOn) return;
  OnDamaged.Raise({-kEverything, -kEverything, kEverything, kEverything});
}

void ChartSurface::Measure(std::shared_ptr<const TextMeasure> pobjMeasure) {
  mMeasure = pobjMeasure ? std::move(pobjMeasure) : std::make_shared<BuiltInTextMeasure>();
}

}  // namespace vantrel

#include "chart/ChartSurface.h"

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

bool IsBox(const Element& pobjElement) { return pobjElement.Family() != ctlLineFamily && pobjElement.Index() != 0; }

template <class E, class Take>
void ForEach(const ElementFamily<E>& pobjFamily, Take&& pTake) {
  for (std::int32_t i = 0; i <= pobjFamily.UpperBound(); ++i) {
    if (const auto& element = pobjFamily.At(i)) pTake(*element);
  }
}

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
  if (IsBox(pobjElement)) mBoxBounds.Add(pobjElement.Bounds());
}

void ChartSurface::ElementChanged(Element& pobjElement, const Rect& pobjBefore, bool pblnWasVisible, bool pblnIsVisible) {
  const Rect after = pobjElement.Bounds();
  const bool moved = pobjBefore != after;
  if (moved && IsBox(pobjElement)) {
    mBoxBounds.Add(after);
    mBoxBounds.Remove(pobjBefore);
  }
  if (moved || pblnWasVisible != pblnIsVisible) Arrange(pobjElement, pobjBefore, after, pblnWasVisible, pblnIsVisible);
  if (pblnWasVisible && pblnIsVisible && pobjBefore.Touches(after)) return Damage(pobjBefore.United(after));
  if (pblnWasVisible) Damage(pobjBefore);
  if (pblnIsVisible) Damage(after);
}

// Updates grid and bounds.
void ChartSurface::Arrange(Element& pobjElement, const Rect& pobjBefore, const Rect& pobjAfter, bool pblnWasVisible, bool pblnIsVisible) {
  if (pblnWasVisible && pblnIsVisible) {
    mGrid.Move(&pobjElement, pobjBefore, pobjAfter);
  } else if (pblnWasVisible) {
    mGrid.Remove(&pobjElement, pobjBefore);
  } else if (pblnIsVisible) {
    mGrid.Insert(&pobjElement, pobjAfter);
  }
  const bool grew = pblnIsVisible && mVisibleBounds.Add(pobjAfter);
  if (pblnWasVisible) mVisibleBounds.Remove(pobjBefore);
  if (grew) OnGrown.Raise(pobjAfter);
}

void ChartSurface::Damage(const Rect& pobjArea) const {
  if (pobjArea.Touches(mWatched)) OnDamaged.Raise(pobjArea);
}

std::optional<Rect> ChartSurface::VisibleBounds() const {
  if (mVisibleBounds.IsKnown()) return mVisibleBounds.Value();
  RunningBounds bounds;
  const auto add = [&bounds](const Element& element) {
    if (element.Visible()) bounds.Add(element.Bounds());
  };
  ForEach(ctlImage, add);
  ForEach(ctlLabel, add);
  ForEach(lblCount, add);
  ForEach(ctlLine, add);
  ForEach(ctlHandle, add);
  mVisibleBounds = bounds;
  return bounds.Value();
}

std::optional<Rect> ChartSurface::BoxBounds() const {
  if (mBoxBounds.IsKnown()) return mBoxBounds.Value();
  RunningBounds bounds;
  const auto add = [&bounds](const Element& element) {
    if (IsBox(element)) bounds.Add(element.Bounds());
  };
  ForEach(ctlImage, add);
  ForEach(ctlLabel, add);
  ForEach(lblCount, add);
  ForEach(ctlHandle, add);
  mBoxBounds = bounds;
  return bounds.Value();
}

void ChartSurface::BringToFront(Element& pobjElement) {
  if (pobjElement.mZOrder == mFront) return;
  pobjElement.mZOrder = ++mFront;
  if (pobjElement.Visible()) Damage(pobjElement.Bounds());
}

// Tells of the damage last: a listener may make an element with the same index, or end the surface.
void ChartSurface::Unload(Element& pobjElement) {
  if (pobjElement.Index() == 0) return;
  const std::shared_ptr<Element> keeper = pobjElement.shared_from_this();
  const Rect bounds = pobjElement.Bounds();
  const bool wasVisible = std::exchange(pobjElement.mVisible, false);
  if (wasVisible) Arrange(pobjElement, bounds, bounds, true, false);
  if (IsBox(pobjElement)) mBoxBounds.Remove(bounds);
  pobjElement.mSurface = nullptr;
  Drop(pobjElement);
  if (wasVisible) Damage(bounds);
}

void ChartSurface::Drop(const Element& pobjElement) {
  const std::int32_t index = pobjElement.Index();
  switch (pobjElement.Family()) {
    case ctlImageFamily:
      return ctlImage.Drop(index);
    case ctlLabelFamily:
      return ctlLabel.Drop(index);
    case lblCountFamily:
      return lblCount.Drop(index);
    case ctlLineFamily:
      return ctlLine.Drop(index);
    case ctlHandleFamily:
      return ctlHandle.Drop(index);
  }
}

std::vector<Element*> ChartSurface::ElementsIn(const Rect& pobjArea) const {
  std::vector<Element*> found;
  mGrid.Collect(pobjArea, found);
  std::vector<std::pair<std::int64_t, Element*>> layers;  // with their orders, so that sorting need not look at the elements
  layers.reserve(found.size());
  for (Element* element : found) {
    if (element->Bounds().Touches(pobjArea)) layers.emplace_back(element->ZOrder(), element);
  }
  std::sort(layers.begin(), layers.end());
  layers.erase(std::unique(layers.begin(), layers.end()), layers.end());
  found.clear();
  for (const auto& [order, element] : layers) found.push_back(element);
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
  Damage(kEverything);
}

void ChartSurface::Visible(bool pblnOn) {
  if (std::exchange(mVisible, pblnOn) == pblnOn) return;
  Damage(kEverything);
}

void ChartSurface::Measure(std::shared_ptr<const TextMeasure> pobjMeasure) {
  mMeasure = pobjMeasure ? std::move(pobjMeasure) : std::make_shared<BuiltInTextMeasure>();
}

}  // namespace vantrel

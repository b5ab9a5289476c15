#include "chart/Element.h"

#include "chart/ChartSurface.h"

namespace vantrel {

void Element::Changed(const Rect& pobjBefore) {
  if (mSurface) mSurface->ElementChanged(*this, pobjBefore, mVisible, mVisible);
}

void Element::Visible(bool pblnOn) {
  if (mVisible == pblnOn) return;
  mVisible = pblnOn;
  if (mSurface) mSurface->ElementChanged(*this, Bounds(), !pblnOn, pblnOn);
}

bool Element::Covers(float psngX, float psngY, float psngTolerance) const {
  Rect box = Bounds();
  box.Left -= psngTolerance;
  box.Top -= psngTolerance;
  box.Right += psngTolerance;
  box.Bottom += psngTolerance;
  return box.Contains(psngX, psngY);
}

void Element::BringToFront() {
  if (mSurface) mSurface->BringToFront(*this);
}

void Element::Unload() {
  if (mSurface) mSurface->Unload(*this);
}

void BoxElement::MoveTo(float psngLeft, float psngTop) {
  if (mLeft == psngLeft && mTop == psngTop) return;
  Alter([&] {
    mLeft = psngLeft;
    mTop = psngTop;
  });
}

void BoxElement::Resize(float psngWidth, float psngHeight) {
  const float width = psngWidth < 0 ? 0 : psngWidth;
  const float height = psngHeight < 0 ? 0 : psngHeight;
  if (mWidth == width && mHeight == height) return;
  Alter([&] {
    mWidth = width;
    mHeight = height;
  });
}

}  // namespace vantrel

// The rectangle that the user draws round objects to select them.
#pragma once

#include "chart/Geometry.h"
#include "util/Event.h"

namespace vantrel {

/// Twips on the chart; drawn in front of all elements.
class SelectionRectangle {
 public:
  const Rect& Area() const { return mArea; }
  bool Visible() const { return mVisible; }
  void Area(const Rect& pobjArea) { Change(pobjArea, mVisible); }
  void Visible(bool pblnOn) { Change(mArea, pblnOn); }

  /// Raised with the rectangle to paint again.
  Event<const Rect&> OnDamaged;

 private:
  void Change(const Rect& pobjArea, bool pblnVisible) {
    if (pobjArea == mArea && pblnVisible == mVisible) return;
    const Rect before = mArea;
    const bool wasVisible = mVisible;
    mArea = pobjArea;
    mVisible = pblnVisible;
    if (wasVisible) OnDamaged.Raise(before);
    if (mVisible) OnDamaged.Raise(mArea);
  }

  Rect mArea;
  bool mVisible = false;
};

}  // namespace vantrel

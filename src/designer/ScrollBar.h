// A scroll bar of the control.
#pragma once

#include "chart/Geometry.h"
#include "util/Event.h"

namespace vantrel {

/// The origin of the part in view, twips on the chart. Views show it; setting Value scrolls.
class ScrollBar {
 public:
  static constexpr float kThickness = 17 * kTwipsPerPixel;

  /// Its rectangle in the control, set by Vantrel::Resize, twips.
  const Rect& Area() const { return mArea; }
  void Area(const Rect& pobjArea) { mArea = pobjArea; }

  float Min() const { return mMin; }
  void Min(float psngMin) { Set(mMin, psngMin, OnRange); }
  float Max() const { return mMax; }
  void Max(float psngMax) { Set(mMax, psngMax, OnRange); }
  float Value() const { return mValue; }
  /// Any value: views let the user scroll beyond the range by the size of the view.
  void Value(float psngValue) { Set(mValue, psngValue, OnChange); }

  Event<> OnRange;   ///< Min or Max changed
  Event<> OnChange;  ///< Value changed

 private:
  static void Set(float& pField, float psngValue, const Event<>& pobjEvent) {
    if (pField == psngValue) return;
    pField = psngValue;
    pobjEvent.Raise();
  }

  Rect mArea;
  float mMin = 0, mMax = 0, mValue = 0;
};

}  // namespace vantrel

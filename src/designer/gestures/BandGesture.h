// Drawing a rectangle round objects to select them.
#pragma once

#include "designer/gestures/Gesture.h"

namespace vantrel {

class Vantrel;

/// Begins with a left press on the background. Does nothing while something is selected, such as the arc that the press hit.
class BandGesture final : public Gesture {
 public:
  BandGesture(Vantrel& pobjControl, const PointerInput& pobjPress);

  void Move(const PointerInput& pobjInput) override;
  void Release(const PointerInput& pobjInput) override;
  void Cancel() override;

 private:
  Vantrel& mobjControl;
  float msngX, msngY;  // of the press
};

}  // namespace vantrel

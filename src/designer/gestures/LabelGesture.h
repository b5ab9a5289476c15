// Dragging a label.
#pragma once

#include "chart/Label.h"
#include "designer/gestures/Gesture.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// From a left press on a label. Its object learns the new place when the button is let go.
class LabelGesture final : public Gesture {
 public:
  LabelGesture(Vantrel& pobjControl, Label& pobjLabel, const PointerInput& pobjPress);

  void Move(const PointerInput& pobjInput) override;
  void Release(const PointerInput& pobjInput) override;
  /// Back to where the label was.
  void Cancel() override;

 private:
  bool CanMove() const;
  void MoveTo(float psngLeft, float psngTop);

  Vantrel& mobjControl;
  Ref<Label> mobjLabel;
  float msngX, msngY;       // of the press, inside the label
  float msngLeft, msngTop;  // of the label at the press
  bool mblnMoved = false;
};

}  // namespace vantrel

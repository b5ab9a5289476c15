// Dragging a label.
#pragma once

#include "chart/Label.h"
#include "designer/gestures/Gesture.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// Begins with a left press on a label. Its object gets the new position when the button is released.
class LabelGesture final : public Gesture {
 public:
  LabelGesture(Vantrel& pobjControl, Label& pobjLabel, const PointerInput& pobjPress);

  void Move(const PointerInput& pobjInput) override;
  void Release(const PointerInput& pobjInput) override;
  /// Moves the label back.
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

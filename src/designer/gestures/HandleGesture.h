// Dragging a bend point.
#pragma once

#include "chart/Image.h"
#include "designer/gestures/Gesture.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// Begins with a left press on the handle of an arc's bend point.
class HandleGesture final : public Gesture {
 public:
  HandleGesture(Vantrel& pobjControl, Image& pobjHandle, const PointerInput& pobjPress);

  void Move(const PointerInput& pobjInput) override;
  void Release(const PointerInput& pobjInput) override;
  void Cancel() override;

 private:
  Vantrel& mobjControl;
  Ref<Image> mobjHandle;
  float msngX, msngY;  // of the press, inside the handle
};

}  // namespace vantrel

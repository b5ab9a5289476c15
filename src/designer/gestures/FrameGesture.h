// Resizing a label by a handle of the focus frame.
#pragma once

#include <cstdint>

#include "chart/Label.h"
#include "designer/gestures/Gesture.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// Begins with a left press on one of the frame's handles. The label's object gets the new size when the button is released.
class FrameGesture final : public Gesture {
 public:
  FrameGesture(Vantrel& pobjControl, std::int32_t plngHandle, const PointerInput& pobjPress);

  void Move(const PointerInput& pobjInput) override;
  void Release(const PointerInput& pobjInput) override;
  /// Restores the label.
  void Cancel() override;

 private:
  // Also false when the frame is round another element now.
  bool CanResize() const;

  Vantrel& mobjControl;
  Ref<Label> mobjLabel;
  Rect mobjBefore;
  std::int32_t mlngHandle;
  float msngX, msngY;  // of the press, inside the handle
  bool mblnMoved = false;
};

}  // namespace vantrel

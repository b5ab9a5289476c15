// Resizing a label by a handle of the focus frame.
#pragma once

#include <cstdint>

#include "chart/Label.h"
#include "designer/gestures/Gesture.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// From a left press on one of the frame's handles. The label's object learns the new size when the button is let go.
class FrameGesture final : public Gesture {
 public:
  FrameGesture(Vantrel& pobjControl, std::int32_t plngHandle, const PointerInput& pobjPress);

  void Move(const PointerInput& pobjInput) override;
  void Release(const PointerInput& pobjInput) override;
  /// Back to what the label was.
  void Cancel() override;

 private:
  // False also when the frame has gone to another element meanwhile.
  bool CanResize() const;

  Vantrel& mobjControl;
  Ref<Label> mobjLabel;
  Rect mobjBefore;
  std::int32_t mlngHandle;
  float msngX, msngY;  // of the press, inside the handle
  bool mblnMoved = false;
};

}  // namespace vantrel

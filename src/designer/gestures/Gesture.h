// What the mouse does on the chart from a press to the release.
#pragma once

#include "designer/PointerInput.h"

namespace vantrel {

/// One kind of drag. Belongs to the control's input. The chart may have changed in any way between two calls, so each call first checks
/// that the dragged object is still there.
class Gesture {
 public:
  Gesture() = default;
  Gesture(const Gesture&) = delete;
  Gesture& operator=(const Gesture&) = delete;
  virtual ~Gesture() = default;

  virtual void Move(const PointerInput& pobjInput) = 0;
  /// The button was released: the last call.
  virtual void Release(const PointerInput& pobjInput) = 0;
  /// The last call instead of Release: objects keep what they have stored, and what was only shown disappears.
  virtual void Cancel() {}
};

}  // namespace vantrel

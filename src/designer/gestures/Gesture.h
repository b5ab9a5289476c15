// What the mouse does on the chart from a press to the release.
#pragma once

#include "designer/PointerInput.h"

namespace vantrel {

/// One kind of drag. Belongs to the control's input. Between two calls anything may have happened to the chart: each call looks first
/// whether what is dragged is still there.
class Gesture {
 public:
  Gesture() = default;
  Gesture(const Gesture&) = delete;
  Gesture& operator=(const Gesture&) = delete;
  virtual ~Gesture() = default;

  virtual void Move(const PointerInput& pobjInput) = 0;
  /// The button was let go: the last call.
  virtual void Release(const PointerInput& pobjInput) = 0;
  /// The last call instead of Release: what objects took over stays, what only shows on the way goes.
  virtual void Cancel() {}
};

}  // namespace vantrel

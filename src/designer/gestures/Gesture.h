// What the mouse does on the chart from a press to the release.
#pragma once

#include "designer/PointerInput.h"

namespace vantrel {

/// One kind of drag. It is kept by whoever calls it as long as the call runs, for what it does raises events, and a listener may
/// end it, delete what it drags or close the control: it looks again after everything that raises one.
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

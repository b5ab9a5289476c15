// Takes all raw events of mouse and keyboard.
#pragma once

#include <cstdint>
#include <memory>

#include "designer/PointerInput.h"
#include "util/Event.h"

namespace vantrel {

class Gesture;
class Vantrel;

/// Finds the element under the pointer, captures it while a button is down and passes the events to a gesture. Views and tests use it
/// alike. Ignores an event whose position is not finite; such a release abandons the gesture. Belongs to its control. A press, key or
/// drop may destroy the control (a listener closes the window); that is safe.
class ChartInput {
 public:
  explicit ChartInput(Vantrel& pobjControl);
  ~ChartInput();
  ChartInput(const ChartInput&) = delete;
  ChartInput& operator=(const ChartInput&) = delete;

  void Press(const PointerInput& pobjInput);
  void Move(const PointerInput& pobjInput);
  void Release(const PointerInput& pobjInput);
  void DoubleClick(const PointerInput& pobjInput);
  /// A key by its code (8 Backspace, 27 Escape, 37 to 40 arrows, 46 Delete). False when the chart does not use it.
  bool Key(std::int16_t pintCode, std::int16_t pintShift);
  /// Drops what the host drags (the control's DragObject) on the chart. False when nothing takes it.
  bool Drop(const PointerInput& pobjInput);

  /// Ends a current gesture, for example when the window loses the mouse. Its effects stay and nothing more happens.
  void Abandon();
  bool IsCaptured() const { return mobjGesture != nullptr; }

 private:
  // Releases a button that no gesture waits for: over an image, hides the focus frame.
  void ReleaseIdly(const PointerInput& pobjInput);

  Vantrel& mobjControl;
  Subscription mobjResized, mobjScrolledAcross, mobjScrolledDown;
  std::shared_ptr<Gesture> mobjGesture;  // while the left button is down
};

}  // namespace vantrel

// The one entrance for raw events of mouse and keyboard.
#pragma once

#include <cstdint>
#include <memory>

#include "designer/PointerInput.h"
#include "util/Event.h"

namespace vantrel {

class Gesture;
class Vantrel;

/// Finds the element under the pointer, captures it while a button is down and hands the events to a gesture. Views and tests
/// use it alike. An event whose position is not finite is passed over; such a release abandons the gesture. Belongs to its control; a
/// press, key or drop may end in the control's destruction (a listener closes the window), which is safe.
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
  /// A key by its code (8 Backspace, 27 Escape, 37 to 40 arrows, 46 Delete). False when the chart has no use for it.
  bool Key(std::int16_t pintCode, std::int16_t pintShift);
  /// Something that the host drags (the control's DragObject) is let go over the chart. False when nothing takes it.
  bool Drop(const PointerInput& pobjInput);

  /// Ends a gesture that is under way, as when the window loses the mouse: what it did stays, nothing more happens.
  void Abandon();
  bool IsCaptured() const { return mobjGesture != nullptr; }

 private:
  // A button that no gesture waits for: over an image, the focus frame goes.
  void ReleaseIdly(const PointerInput& pobjInput);

  Vantrel& mobjControl;
  Subscription mobjResized, mobjScrolledAcross, mobjScrolledDown;
  std::shared_ptr<Gesture> mobjGesture;  // while the left button is down
};

}  // namespace vantrel

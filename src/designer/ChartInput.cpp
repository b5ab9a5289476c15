#include "designer/ChartInput.h"

#include <cmath>
#include <functional>
#include <utility>

#include "designer/ControlScope.h"
#include "designer/Vantrel.h"
#include "designer/gestures/DoubleClicks.h"
#include "designer/gestures/Drops.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Gesture.h"
#include "designer/gestures/Hover.h"
#include "designer/gestures/Keys.h"
#include "designer/gestures/LabelPlace.h"
#include "designer/gestures/Presses.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

// Handles an event and shows its errors to the user. The control, and with it its input, may be gone afterwards.
void Serve(Vantrel& pobjControl, const std::function<void()>& pServe) {
  ShowErrors([&] {
    const ControlScope scope(pobjControl);
    pServe();
  });
}

void Resized(Vantrel& pobjControl, float psngHeight, float psngWidth) {
  const auto label = std::dynamic_pointer_cast<Label>(pobjControl.FocusFrame.SelectedControl().Lock());
  if (label) StoreLabelSize(pobjControl, *label, psngHeight, psngWidth);
}

bool IsHandled(const PointerInput& pobjInput) { return pobjInput.Button == vntLeftButton || pobjInput.Button == vntRightButton; }

// An object at a NaN position could not be found or saved any more.
bool IsSomewhere(const PointerInput& pobjInput) { return std::isfinite(pobjInput.X) && std::isfinite(pobjInput.Y); }

// Objects keep their coordinates, and their drawing does not depend on the part in view.
void Scroll(Vantrel& pobjControl) { pobjControl.ChartArea.Origin(pobjControl.HScroll.Value(), pobjControl.VScroll.Value()); }

}  // namespace

ChartInput::ChartInput(Vantrel& pobjControl)
    : mobjControl(pobjControl),
      mobjResized(
          pobjControl.FocusFrame.OnResized.Connect([&pobjControl](float height, float width) { Resized(pobjControl, height, width); })),
      mobjScrolledAcross(pobjControl.HScroll.OnChange.Connect([&pobjControl] { Scroll(pobjControl); })),
      mobjScrolledDown(pobjControl.VScroll.OnChange.Connect([&pobjControl] { Scroll(pobjControl); })) {}

ChartInput::~ChartInput() = default;

void ChartInput::Press(const PointerInput& pobjInput) {
  if (!IsHandled(pobjInput) || !IsSomewhere(pobjInput)) return;
  if (mobjGesture) {
    // Ignores another button while one is held. The same one means that its release was lost.
    if (pobjInput.Button != vntLeftButton) return;
    Abandon();
  }
  Serve(mobjControl, [&] {
    mobjControl.FocusFrame.CancelEdit();
    // Also null when a menu, or a host that ran a transition's action, has destroyed the control.
    if (const auto gesture = PressAt(mobjControl, pobjInput)) mobjGesture = gesture;
  });
}

void ChartInput::Move(const PointerInput& pobjInput) {
  if (!IsSomewhere(pobjInput)) return;
  const auto gesture = mobjGesture;
  Serve(mobjControl, [&] {
    if (gesture) {
      gesture->Move(pobjInput);
    } else {
      Hover(mobjControl, pobjInput);
    }
  });
}

void ChartInput::Release(const PointerInput& pobjInput) {
  if (!mobjGesture || pobjInput.Button != vntLeftButton) return ReleaseIdly(pobjInput);
  if (!IsSomewhere(pobjInput)) return Abandon();
  const auto gesture = std::exchange(mobjGesture, nullptr);
  Serve(mobjControl, [&] { gesture->Release(pobjInput); });
}

void ChartInput::ReleaseIdly(const PointerInput& pobjInput) {
  const Element* const element = IsSomewhere(pobjInput) ? ElementUnder(mobjControl, pobjInput.X, pobjInput.Y) : nullptr;
  if (element && element->Family() == ctlImageFamily) mobjControl.FocusFrame.Visible(false);
}

void ChartInput::DoubleClick(const PointerInput& pobjInput) {
  if (pobjInput.Button != vntLeftButton || !IsSomewhere(pobjInput)) return;
  if (mobjControl.Comfort.QuickPressEndsArc && mobjControl.IsInsertingArc()) return Press(pobjInput);
  bool isUsed = true;
  // Two presses in quick succession are two presses where a double-click does nothing.
  Serve(mobjControl, [&] { isUsed = DoubleClickAt(mobjControl, pobjInput); });
  if (!isUsed) Press(pobjInput);
}

bool ChartInput::Key(std::int16_t pintCode, std::int16_t pintShift) {
  FocusFrame& frame = mobjControl.FocusFrame;
  bool isUsed = true;
  if (frame.IsEditing()) {
    if (pintCode == kEscapeKey) frame.CancelEdit();
    return pintCode == kEscapeKey;
  }
  if (pintCode == kEscapeKey) Abandon();
  Serve(mobjControl, [&] { isUsed = (frame.TakesKeys() && frame.Key(pintCode)) || PressKey(mobjControl, pintCode, pintShift); });
  return isUsed;
}

bool ChartInput::Drop(const PointerInput& pobjInput) {
  bool isTaken = false;
  if (!IsSomewhere(pobjInput)) return isTaken;
  Serve(mobjControl, [&] { isTaken = DropAt(mobjControl, pobjInput); });
  return isTaken;
}

void ChartInput::Abandon() {
  const auto gesture = std::exchange(mobjGesture, nullptr);
  if (gesture) Serve(mobjControl, [&] { gesture->Cancel(); });
}

}  // namespace vantrel

// A press on the background takes an arc, begins a selection, or asks for the pop-up.
#include "designer/HostEvents.h"
#include "designer/gestures/BandGesture.h"
#include "designer/gestures/Keys.h"
#include "designer/gestures/Presses.h"
#include "designer/gestures/SegmentHit.h"

namespace vantrel {

namespace {

void TakeSegment(Vantrel& pobjControl, const PointerInput& pobjInput) {
  const auto line = SegmentAt(pobjControl.ChartArea, pobjInput.X, pobjInput.Y);
  if (line) return pobjControl.CurrentControl(line);
  pobjControl.CurrentControl(nullptr);
  RaiseForObject(pobjControl, &Vantrel::OnSelected, nullptr);
}

std::shared_ptr<Gesture> LeftPress(Vantrel& pobjControl, const PointerInput& pobjInput) {
  pobjControl.MultiSelectOn = false;
  pobjControl.MultiSelect.Visible(false);
  pobjControl.MultiSelect.Area({pobjInput.X, pobjInput.Y, pobjInput.X, pobjInput.Y});
  pobjControl.Selection(nullptr);
  pobjControl.FocusFrame.SelectedControl(nullptr);
  if (pobjControl.IsInsertingArc()) {
    PressKey(pobjControl, kEscapeKey, vntNoShift);
  } else {
    TakeSegment(pobjControl, pobjInput);
  }
  return std::make_shared<BandGesture>(pobjControl, pobjInput);
}

void RightPress(Vantrel& pobjControl) {
  const Ref<Vantrel> control(&pobjControl);  // the menu may destroy it
  if (pobjControl.EnablePopups && pobjControl.UseMode() == vntDesign) {
    pobjControl.ShowDesignMenu();
  } else if (pobjControl.EnablePopups && pobjControl.UseMode() == vntTest) {
    pobjControl.ShowTestMenu();
  }
  if (control) RaiseForObject(pobjControl, &Vantrel::OnRightClick, nullptr);
}

}  // namespace

std::shared_ptr<Gesture> PressOnChart(Vantrel& pobjControl, const PointerInput& pobjInput) {
  pobjControl.CurrentX = pobjInput.X;
  pobjControl.CurrentY = pobjInput.Y;
  if (pobjInput.Button == vntLeftButton) return LeftPress(pobjControl, pobjInput);
  RightPress(pobjControl);
  return nullptr;
}

}  // namespace vantrel

// A press on the background takes an arc, begins a selection, or asks for the pop-up.
#include "designer/HostEvents.h"
#include "designer/gestures/BandGesture.h"
#include "designer/gestures/Keys.h"
#include "designer/gestures/Presses.h"
#include "designer/gestures/SegmentHit.h"

namespace vantrel {

namespace {

void TakeSegment(const Ref<Vantrel>& pobjControl, const PointerInput& pobjInput) {
  const auto line = SegmentAt(pobjControl->ChartArea, pobjInput.X, pobjInput.Y);
  if (line) return pobjControl->CurrentControl(line);
  pobjControl->CurrentControl(nullptr);
  if (pobjControl) RaiseForObject(*pobjControl, &Vantrel::OnSelected, nullptr);
}

std::shared_ptr<Gesture> LeftPress(const Ref<Vantrel>& pobjControl, const PointerInput& pobjInput) {
  pobjControl->MultiSelectOn = false;
  pobjControl->MultiSelect.Visible(false);
  pobjControl->MultiSelect.Area({pobjInput.X, pobjInput.Y, pobjInput.X, pobjInput.Y});
  pobjControl->Selection(nullptr);
  pobjControl->FocusFrame.SelectedControl(nullptr);
  if (pobjControl->IsInsertingArc()) {
    PressKey(*pobjControl, kEscapeKey, vntNoShift);
  } else {
    TakeSegment(pobjControl, pobjInput);
  }
  return pobjControl ? std::make_shared<BandGesture>(*pobjControl, pobjInput) : nullptr;
}

void RightPress(const Ref<Vantrel>& pobjControl) {
  if (pobjControl->EnablePopups && pobjControl->UseMode() == vntDesign) {
    pobjControl->ShowDesignMenu();
  } else if (pobjControl->EnablePopups && pobjControl->UseMode() == vntTest) {
    pobjControl->ShowTestMenu();
  }
  if (pobjControl) RaiseForObject(*pobjControl, &Vantrel::OnRightClick, nullptr);
}

}  // namespace

std::shared_ptr<Gesture> PressOnChart(Vantrel& pobjControl, const PointerInput& pobjInput) {
  const Ref<Vantrel> control(&pobjControl);
  control->CurrentX = pobjInput.X;
  control->CurrentY = pobjInput.Y;
  if (pobjInput.Button == vntLeftButton) return LeftPress(control, pobjInput);
  RightPress(control);
  return nullptr;
}

}  // namespace vantrel

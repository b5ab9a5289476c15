// A press on a label takes the label, takes its object while testing, or asks for the pop-up.
#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Hover.h"
#include "designer/gestures/LabelGesture.h"
#include "designer/gestures/Presses.h"

namespace vantrel {

namespace {

std::shared_ptr<Gesture> Take(const Ref<Vantrel>& pobjControl, const Ref<Label>& pobjLabel, const PointerInput& pobjInput) {
  if (pobjControl->LockControls()) return nullptr;
  pobjControl->Selection(nullptr);
  pobjControl->CurrentControl(pobjLabel.get());
  if (!pobjControl || !IsOnChart(pobjLabel)) return nullptr;
  pobjControl->FocusFrame.SelectedControl(pobjLabel.get());
  return std::make_shared<LabelGesture>(*pobjControl, *pobjLabel, pobjInput);
}

void PlayWith(const Ref<Vantrel>& pobjControl, const Label& pobjLabel, const PointerInput& pobjInput) {
  const auto object = ObjectOf(*pobjControl, pobjLabel);
  pobjControl->Selection(nullptr);
  if (object) {
    pobjControl->CurrentObject(object);
    if (const auto element = ElementOf(*object)) pobjControl->CurrentControl(element);
  }
  if (pobjControl && pobjInput.Button == vntRightButton && pobjControl->UseMode() == vntTest) pobjControl->ShowTestMenu();
}

}  // namespace

std::shared_ptr<Gesture> PressOnLabel(Vantrel& pobjControl, Label& pobjLabel, const PointerInput& pobjInput) {
  const Ref<Vantrel> control(&pobjControl);
  if (pobjControl.UseMode() == vntDesign) {
    if (pobjInput.Button == vntLeftButton) return Take(control, &pobjLabel, pobjInput);
    if (pobjControl.EnablePopups) pobjControl.ShowDesignMenu();
  } else if (IsTesting(pobjControl)) {
    PlayWith(control, pobjLabel, pobjInput);
  }
  return nullptr;
}

}  // namespace vantrel

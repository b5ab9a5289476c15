// A press on a label takes the label, takes its object while testing, or asks for the pop-up.
#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Hover.h"
#include "designer/gestures/LabelGesture.h"
#include "designer/gestures/Presses.h"

namespace vantrel {

namespace {

std::shared_ptr<Gesture> Take(Vantrel& pobjControl, Label& pobjLabel, const PointerInput& pobjInput) {
  if (pobjControl.LockControls()) return nullptr;
  pobjControl.Selection(nullptr);
  pobjControl.CurrentControl(&pobjLabel);
  pobjControl.FocusFrame.SelectedControl(&pobjLabel);
  return std::make_shared<LabelGesture>(pobjControl, pobjLabel, pobjInput);
}

void PlayWith(Vantrel& pobjControl, const Label& pobjLabel, const PointerInput& pobjInput) {
  const auto object = ObjectOf(pobjControl, pobjLabel);
  pobjControl.Selection(nullptr);
  if (object) {
    pobjControl.CurrentObject(object);
    if (const auto element = ElementOf(*object)) pobjControl.CurrentControl(element);
  }
  if (pobjInput.Button == vntRightButton && pobjControl.UseMode() == vntTest) pobjControl.ShowTestMenu();
}

}  // namespace

std::shared_ptr<Gesture> PressOnLabel(Vantrel& pobjControl, Label& pobjLabel, const PointerInput& pobjInput) {
  if (pobjControl.UseMode() == vntDesign) {
    if (pobjInput.Button == vntLeftButton) return Take(pobjControl, pobjLabel, pobjInput);
    if (pobjControl.EnablePopups) pobjControl.ShowDesignMenu();
  } else if (IsTesting(pobjControl)) {
    PlayWith(pobjControl, pobjLabel, pobjInput);
  }
  return nullptr;
}

}  // namespace vantrel

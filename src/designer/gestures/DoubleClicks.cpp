#include "designer/gestures/DoubleClicks.h"

#include "designer/Dialogs.h"
#include "designer/HostEvents.h"
#include "designer/Vantrel.h"
#include "designer/gestures/Choosing.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Hover.h"

namespace vantrel {

namespace {

bool OpenObject(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjObject) {
  if (const auto transition = std::dynamic_pointer_cast<Transition>(pobjObject)) {
    RaiseLater(pobjControl, &Vantrel::OnTransitionDblClick, transition);
    return true;
  }
  const auto place = std::dynamic_pointer_cast<Place>(pobjObject);
  if (!place || !IsTesting(pobjControl)) return false;
  const auto dialogs = pobjControl.Dialogs;
  if (const HostTurn turn(pobjControl); turn) dialogs->ShowTokens(pobjControl, *place);
  return true;
}

void EditLabel(Vantrel& pobjControl, const Ref<Element>& pobjLabel) {
  if (pobjControl.LockControls()) return;
  if (pobjControl.Comfort.ChosenIsSeen && !(pobjControl.CurrentControl() == pobjLabel)) ChooseAlone(pobjControl, pobjLabel);
  FocusFrame& frame = pobjControl.FocusFrame;
  if (!(frame.SelectedControl() == pobjLabel)) frame.SelectedControl(pobjLabel);
  frame.Visible(true);
  frame.Edit();
}

}  // namespace

bool DoubleClickAt(Vantrel& pobjControl, const PointerInput& pobjInput) {
  if (pobjControl.FocusFrame.HandleAt(pobjInput.X, pobjInput.Y) >= 0) return false;
  Element* const element = ElementUnder(pobjControl, pobjInput.X, pobjInput.Y);
  if (!element || element->Family() == ctlHandleFamily) return false;
  if (element->Family() != ctlLabelFamily || pobjControl.UseMode() != vntDesign) {
    return OpenObject(pobjControl, ObjectOf(pobjControl, *element));
  }
  EditLabel(pobjControl, element);
  return true;
}

}  // namespace vantrel

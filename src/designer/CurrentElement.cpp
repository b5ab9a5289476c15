#include "designer/CurrentElement.h"

#include "designer/ChartObjects.h"
#include "designer/HostEvents.h"
#include "designer/Selecting.h"

namespace vantrel {

namespace {

bool IsSegment(const Element& pobjElement) { return pobjElement.Family() == ctlLineFamily && pobjElement.Index() > 0; }

}  // namespace

void CurrentElement::DropHighlight() {
  const Element* element = mobjControl.mobjCurrentControl.get();
  const auto& workflow = mobjControl.Workflow();
  if (!element || !workflow || !element->Visible() || !IsSegment(*element)) return;
  const auto segment = workflow->Vectors.Find(element->Tag());
  if (!segment || !segment->Arc()) return;
  const bool staysSelected = mobjControl.Comfort.ChosenIsSeen && segment->Selected();
  if (!staysSelected) segment->Arc()->RemoveFocus();
}

// A click on one object replaces a selection of one; a click on one of several keeps them. Marks and the rubber band repaint what
// they covered, so the chart is not drawn again: a click takes no longer on a large chart.
void CurrentElement::KeepSelectionOf(const std::shared_ptr<ModelObject>& pobjObject) {
  if (mobjControl.Selection()->Count() >= 2 && mobjControl.InSelections(pobjObject)) return;
  Selecting(mobjControl).SelectOnly(pobjObject);
  mobjControl.MultiSelect.Visible(false);
}

void CurrentElement::Mark(Element& pobjElement, const std::shared_ptr<ModelObject>& pobjObject) {
  if (pobjElement.Family() == ctlLineFamily) {
    mobjControl.FocusFrame.Visible(false);
    const auto vector = std::dynamic_pointer_cast<Vector>(pobjObject);
    if (vector && IsSegment(pobjElement)) vector->Arc()->Setfocus();
    return;
  }
  mobjControl.FocusFrame.SelectedControl(&pobjElement);
  if (pobjElement.Family() == ctlImageFamily) KeepSelectionOf(pobjObject);
}

void CurrentElement::Set(const Ref<Element>& pobjElement) {
  const auto element = pobjElement;  // NOLINT(performance-unnecessary-copy-initialization): the caller's may be the control's own
  DropHighlight();
  if (!element) {
    mobjControl.FocusFrame.SelectedControl(nullptr);
    mobjControl.mobjCurrentControl = nullptr;
    return;
  }
  const auto object = mobjControl.GetVNTRObject(element->Tag());
  if (!object) throw Error(vntErrObjectNotSet);
  if (!IsSelected(*object)) Selecting(mobjControl).Add(object);
  if (mobjControl.UseMode() == vntDesign) Mark(*element, object);
  mobjControl.mobjCurrentControl = element;
  RaiseForObject(mobjControl, &Vantrel::OnSelected, object);
}

}  // namespace vantrel

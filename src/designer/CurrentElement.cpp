#include "designer/CurrentElement.h"

#include "designer/ChartObjects.h"
#include "designer/ControlParts.h"
#include "designer/HostEvents.h"
#include "designer/Selecting.h"

namespace vantrel {

namespace {

bool IsSegment(const Element& pobjElement) { return pobjElement.Family() == ctlLineFamily && pobjElement.Index() > 0; }

void DropHighlight(const Vantrel& pobjControl) {
  const Element* element = PartsOf(pobjControl).CurrentControl.get();
  const auto& workflow = pobjControl.Workflow();
  if (!element || !workflow || !element->Visible() || !IsSegment(*element)) return;
  const auto segment = workflow->Vectors.Find(element->Tag());
  if (!segment || !segment->Arc()) return;
  const bool staysSelected = pobjControl.Comfort.ChosenIsSeen && segment->Selected();
  if (!staysSelected) segment->Arc()->RemoveFocus();
}

// A click on one object replaces a selection of one; a click on one of several keeps them. Marks and the rubber band repaint what
// they covered, so the chart is not drawn again: a click takes no longer on a large chart.
void KeepSelectionOf(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjObject) {
  if (pobjControl.Selection()->Count() >= 2 && pobjControl.InSelections(pobjObject)) return;
  SelectOnly(pobjControl, pobjObject);
  pobjControl.MultiSelect.Visible(false);
}

void Mark(Vantrel& pobjControl, Element& pobjElement, const std::shared_ptr<ModelObject>& pobjObject) {
  if (pobjElement.Family() == ctlLineFamily) {
    pobjControl.FocusFrame.Visible(false);
    const auto vector = std::dynamic_pointer_cast<Vector>(pobjObject);
    if (vector && IsSegment(pobjElement)) vector->Arc()->Setfocus();
    return;
  }
  pobjControl.FocusFrame.SelectedControl(&pobjElement);
  if (pobjElement.Family() == ctlImageFamily) KeepSelectionOf(pobjControl, pobjObject);
}

}  // namespace

void SetCurrentControl(Vantrel& pobjControl, const Ref<Element>& pobjElement) {
  const auto element = pobjElement;  // NOLINT(performance-unnecessary-copy-initialization): the caller's may be the control's own
  DropHighlight(pobjControl);
  if (!element) {
    pobjControl.FocusFrame.SelectedControl(nullptr);
    PartsOf(pobjControl).CurrentControl = nullptr;
    return;
  }
  const auto object = pobjControl.GetVNTRObject(element->Tag());
  if (!object) throw Error(vntErrObjectNotSet);
  if (!IsSelected(*object)) AddToSelection(pobjControl, object);
  if (pobjControl.UseMode() == vntDesign) Mark(pobjControl, *element, object);
  PartsOf(pobjControl).CurrentControl = element;
  RaiseForObject(pobjControl, &Vantrel::OnSelected, object);
}

}  // namespace vantrel

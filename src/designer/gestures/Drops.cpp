#include "designer/gestures/Drops.h"

#include "designer/Dialogs.h"
#include "designer/HostEvents.h"
#include "designer/gestures/ElementUnder.h"

namespace vantrel {

namespace {

bool DropOnImage(const Ref<Vantrel>& pobjControl, const Element& pobjImage) {
  const auto transition = std::dynamic_pointer_cast<Transition>(ObjectOf(*pobjControl, pobjImage));
  if (!transition || !static_cast<const Image&>(pobjImage).AcceptsDrops()) return false;
  const auto source = pobjControl->DragObject;
  const auto dialogs = pobjControl->Dialogs;
  dialogs->LoadRolesImage(*pobjControl, *transition);
  if (pobjControl) RaiseLater(*pobjControl, &Vantrel::OnObjectDropped, transition, source);
  return true;
}

}  // namespace

bool DropAt(Vantrel& pobjControl, const PointerInput& pobjInput) {
  const Ref<Vantrel> control(&pobjControl);
  const auto source = control->DragObject;
  if (!source) return false;
  const Element* element = ElementUnder(*control, pobjInput.X, pobjInput.Y);
  if (element && element->Family() == ctlImageFamily) return DropOnImage(control, *element);
  RaiseLater(*control, &Vantrel::OnObjectDragDrop, source, pobjInput.Button, pobjInput.Shift, pobjInput.X, pobjInput.Y);
  if (control) control->Selection(nullptr);
  return true;
}

}  // namespace vantrel

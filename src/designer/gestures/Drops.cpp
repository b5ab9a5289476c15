#include "designer/gestures/Drops.h"

#include "designer/Dialogs.h"
#include "designer/HostEvents.h"
#include "designer/gestures/ElementUnder.h"

namespace vantrel {

namespace {

bool DropOnImage(Vantrel& pobjControl, const Image& pobjImage) {
  const auto transition = std::dynamic_pointer_cast<Transition>(ObjectOf(pobjControl, pobjImage));
  if (!transition || !pobjImage.AcceptsDrops()) return false;
  RaiseLater(pobjControl, &Vantrel::OnObjectDropped, transition, pobjControl.DragObject);
  const auto dialogs = pobjControl.Dialogs;
  dialogs->LoadRolesImage(pobjControl, *transition);
  return true;
}

}  // namespace

bool DropAt(Vantrel& pobjControl, const PointerInput& pobjInput) {
  if (!pobjControl.DragObject) return false;
  const Element* element = ElementUnder(pobjControl, pobjInput.X, pobjInput.Y);
  if (element && element->Family() == ctlImageFamily) return DropOnImage(pobjControl, static_cast<const Image&>(*element));
  RaiseLater(pobjControl, &Vantrel::OnObjectDragDrop, pobjControl.DragObject, pobjInput.Button, pobjInput.Shift, pobjInput.X, pobjInput.Y);
  pobjControl.Selection(nullptr);
  return true;
}

}  // namespace vantrel

#include "designer/CommandRules.h"

#include "designer/Vantrel.h"

namespace vantrel {

namespace {

bool IsCurrent(const Vantrel& pobjControl, std::int32_t plngFamily) {
  const Element* current = pobjControl.CurrentControl().get();
  return current && current->Family() == plngFamily;
}

std::shared_ptr<Place> CurrentPlace(const Vantrel& pobjControl) { return std::dynamic_pointer_cast<Place>(pobjControl.CurrentObject()); }

}  // namespace

bool MayChange(const Vantrel& pobjControl) {
  return !pobjControl.Comfort.LockHolds || (pobjControl.UseMode() == vntDesign && !pobjControl.LockControls());
}

bool IsAlways(const Vantrel&) { return true; }

bool HasWorkflow(const Vantrel& pobjControl) { return pobjControl.Workflow() != nullptr; }

bool CanCopy(const Vantrel& pobjControl) {
  const auto count = pobjControl.Selection()->Count();
  const bool isEnough = pobjControl.CurrentControl() ? count > 0 && !IsCurrent(pobjControl, ctlLineFamily) : count >= 2;
  return HasWorkflow(pobjControl) && isEnough;
}

bool CanPaste(const Vantrel& pobjControl) { return CanInsert(pobjControl) && pobjControl.Clipboard && !pobjControl.Clipboard->IsEmpty(); }

bool CanDelete(const Vantrel& pobjControl) {
  return CanInsert(pobjControl) && (!pobjControl.Selection()->IsEmpty() || pobjControl.CurrentControl());
}

bool CanSelectAll(const Vantrel& pobjControl) {
  const auto& workflow = pobjControl.Workflow();
  return workflow && (!workflow->Transitions.IsEmpty() || !workflow->Places.IsEmpty());
}

bool CanInsert(const Vantrel& pobjControl) { return HasWorkflow(pobjControl) && !pobjControl.LockControls(); }

bool CanInsertArc(const Vantrel& pobjControl) { return CanInsert(pobjControl) && IsCurrent(pobjControl, ctlImageFamily); }

bool CanInsertElbow(const Vantrel& pobjControl) { return CanInsert(pobjControl) && IsCurrent(pobjControl, ctlLineFamily); }

bool CanRemoveElbow(const Vantrel& pobjControl) {
  if (!CanInsertElbow(pobjControl)) return false;
  const auto segment = pobjControl.Workflow()->Vectors.Find(pobjControl.CurrentControl()->Tag());
  return segment && segment->Arc() && !segment->Arc()->BendPoints().empty();
}

bool CanAlign(const Vantrel& pobjControl) { return CanInsert(pobjControl) && pobjControl.Selection()->Count() >= 2; }

bool CanShowProperties(const Vantrel& pobjControl) { return HasWorkflow(pobjControl) && pobjControl.CurrentControl(); }

bool CanStartCase(const Vantrel& pobjControl) {
  const auto place = CurrentPlace(pobjControl);
  return !place || (HasWorkflow(pobjControl) && pobjControl.Workflow()->StartPlace == place);
}

bool CanAddToken(const Vantrel& pobjControl) { return CurrentPlace(pobjControl) != nullptr; }

bool CanRemoveToken(const Vantrel& pobjControl) {
  const auto place = CurrentPlace(pobjControl);
  return place && !place->Tokens().IsEmpty();
}

}  // namespace vantrel

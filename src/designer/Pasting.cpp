#include "designer/Pasting.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "designer/ChartObjects.h"
#include "designer/CurrentPosition.h"
#include "designer/ElementBinding.h"
#include "designer/PopupMenus.h"
#include "designer/StillShown.h"

namespace vantrel {

void Pasting::TakeCorner(const Objects& pcolObjects) {
  float left = std::numeric_limits<float>::max(), top = left;
  for (const auto& object : pcolObjects) {
    const auto bounds = BoundsOf(*object);
    if (!bounds) continue;
    left = std::min(left, bounds->Left);
    top = std::min(top, bounds->Top);
  }
  msngShiftX = left - mobjControl.CurrentX;
  msngShiftY = top - mobjControl.CurrentY;
}

void Pasting::SelectCopy(const ModelObject& pobjFrom, const std::shared_ptr<ModelObject>& pobjCopy) {
  ObjectCollection& selection = *mobjControl.Selection();
  const std::string key = KeyOf(pobjFrom);
  selection.Add(pobjCopy, selection.Contains(key) ? std::string() : key);
  Select(*pobjCopy, true);
}

void Pasting::PasteNotation(const std::shared_ptr<Notation>& pobjFrom) {
  const auto copy = pobjFrom->Clone();
  copy->Workflow = mobjWorkflow;
  copy->Key = NextKey(mobjWorkflow->Notations, mobjWorkflow->Notations.KeyWord());
  MoveTo(*copy, static_cast<float>(copy->Left()) - msngShiftX, static_cast<float>(copy->Top()) - msngShiftY);
  copy->Dirty = true;
  ElementBinding(mobjControl).Bind(*copy);
  mobjWorkflow->Notations.Add(copy, copy->Key);
  SelectCopy(*pobjFrom, copy);
}

template <class N>
void Pasting::PasteNode(const std::shared_ptr<N>& pobjFrom, Collection<N>& pcolNodes, FreeNames& pobjNames) {
  const auto copy = pobjFrom->Clone();
  copy->Workflow = mobjWorkflow;
  copy->AssignName(pobjNames.Take(pobjFrom->Name()));
  copy->Key = NextKey(pcolNodes, pcolNodes.KeyWord());
  copy->Left(copy->Left() - msngShiftX);
  copy->Top(copy->Top() - msngShiftY);
  ElementBinding(mobjControl).Bind(*copy);
  pcolNodes.Add(copy, copy->Key);
  copy->Visible(true);
  copy->Draw();
  mCopies.emplace(pobjFrom.get(), copy);
  SelectCopy(*pobjFrom, copy);
}

void Pasting::PasteArc(const Arc& pobjFrom) {
  const auto end = mCopies.find(pobjFrom.Place.get()), otherEnd = mCopies.find(pobjFrom.Transition.get());
  if (end == mCopies.end() || otherEnd == mCopies.end()) return;
  const auto place = std::static_pointer_cast<Place>(end->second);
  const auto transition = std::static_pointer_cast<Transition>(otherEnd->second);
  const Arc* path = mobjControl.mobjCopied->CopyOf(pobjFrom);
  const auto arc = (path ? path : &pobjFrom)->Clone(mobjWorkflow, place, transition);
  const bool inward = arc->ArcDirection == vntInArc;
  (inward ? place->OutArcs : place->InArcs).Add(arc, arc->Key);
  (inward ? transition->InArcs : transition->OutArcs).Add(arc, arc->Key);
  ElementBinding(mobjControl).Bind(*arc);
  arc->Visible(true);
  arc->Draw();
}

void Pasting::PasteAll(const Objects& pcolObjects) {
  FreeNames placeNames(mobjWorkflow->Places), transitionNames(mobjWorkflow->Transitions);
  for (const auto& object : pcolObjects) {
    if (const auto note = std::dynamic_pointer_cast<Notation>(object)) {
      PasteNotation(note);
    } else if (const auto transition = std::dynamic_pointer_cast<Transition>(object)) {
      PasteNode(transition, mobjWorkflow->Transitions, transitionNames);
    } else if (const auto place = std::dynamic_pointer_cast<Place>(object)) {
      PasteNode(place, mobjWorkflow->Places, placeNames);
    }
  }
  for (const auto& object : pcolObjects) {
    if (const auto arc = std::dynamic_pointer_cast<Arc>(object)) PasteArc(*arc);
  }
}

void Pasting::Paste() {
  const auto clipboard = mobjControl.Clipboard;
  if (!clipboard || clipboard->IsEmpty()) {
    mobjControl.mobjMenus->Paste().Enabled = false;
    return;
  }
  RequirePosition(mobjControl);
  Objects objects;  // as they are now: deleting and listeners change selection and clipboard
  for (const auto& object : *clipboard) {
    objects.push_back(object);
    if (const auto* place = dynamic_cast<const Place*>(object.get())) ElementBinding(mobjControl).RequirePicture(*place);
  }
  const Ref<Vantrel> control(&mobjControl);
  if (!mobjControl.Workflow()) mobjControl.Workflow(std::make_shared<Workflow>());
  if (!control || !mobjControl.Workflow()) return;
  mobjWorkflow = mobjControl.Workflow();
  const StillShown shown(mobjControl);
  mobjControl.mobjCopied->Keep(*clipboard);
  TakeCorner(objects);
  mobjControl.Delete();
  if (!shown) return;
  PasteAll(objects);
  mobjControl.Refresh();
  const auto pasted = mobjControl.Selection();
  mobjWorkflow->Dirty(true);
  if (shown) mobjControl.OnPasted.Raise(pasted);
}

}  // namespace vantrel

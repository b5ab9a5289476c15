#include "designer/Pasting.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <unordered_set>

#include "designer/ChartObjects.h"
#include "designer/ControlParts.h"
#include "designer/CurrentPosition.h"
#include "designer/Deleting.h"
#include "designer/ElementBinding.h"
#include "designer/FreeNames.h"
#include "designer/HostEvents.h"
#include "designer/Selecting.h"

namespace vantrel {

namespace {

template <class T>
void RequireKeysFor(std::size_t plngCount, const Collection<T>& pcolItems) {
  constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
  if (plngCount > static_cast<std::size_t>(kLargest - pcolItems.LargestKeyNumber())) throw Error(vntErrOverflow);
}

class Pasting {
 public:
  explicit Pasting(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  void Paste();

 private:
  using Objects = PastePlace::Objects;

  void ChoosePlace(const Objects& pcolObjects);
  void MakeRoom();
  void RequirePictures(const Objects& pcolObjects) const;
  void RequireKeys(const Objects& pcolObjects) const;
  void ChooseNames(const Objects& pcolObjects);
  void PasteAll(const Objects& pcolObjects);
  void PasteNotation(const std::shared_ptr<Notation>& pobjFrom);
  template <class N>
  void PasteNode(const std::shared_ptr<N>& pobjFrom, Collection<N>& pcolNodes);
  void PasteArc(const Arc& pobjFrom);
  /// The selection lists it under the key of the object that it was copied from.
  void SelectCopy(const ModelObject& pobjFrom, const std::shared_ptr<ModelObject>& pobjCopy);

  Vantrel& mobjControl;
  std::shared_ptr<Workflow> mobjWorkflow;
  std::unordered_map<const ModelObject*, std::string> mNames;                    // of the copies
  std::unordered_map<const ModelObject*, std::shared_ptr<ModelObject>> mCopies;  // by what they were copied from
  float msngShiftX = 0, msngShiftY = 0;
};

void Pasting::RequirePictures(const Objects& pcolObjects) const {
  for (const auto& object : pcolObjects) {
    if (object->Kind() == ChartKind::Place) RequirePicture(mobjControl, static_cast<const Place&>(*object));
    if (object->Kind() == ChartKind::Transition) RequirePicture(mobjControl, static_cast<const Transition&>(*object));
  }
}

// More than needed if the objects to be deleted have the largest keys.
void Pasting::RequireKeys(const Objects& pcolObjects) const {
  std::size_t segments = 0;
  for (const auto& object : pcolObjects) {
    if (object->Kind() == ChartKind::Arc) segments += static_cast<const Arc&>(*object).Path().size();
  }
  RequireKeysFor(pcolObjects.size(), mobjWorkflow->Places);
  RequireKeysFor(pcolObjects.size(), mobjWorkflow->Transitions);
  RequireKeysFor(pcolObjects.size(), mobjWorkflow->Notations);
  RequireKeysFor(pcolObjects.size(), mobjWorkflow->Arcs);
  RequireKeysFor(segments, mobjWorkflow->Vectors);
  RequireKeysFor(segments, mobjWorkflow->Elbows);
}

// The names of objects to be deleted count as free.
void Pasting::ChooseNames(const Objects& pcolObjects) {
  std::unordered_set<const ModelObject*> leaving;
  if (!mobjControl.Comfort.PasteKeepsOriginals) {
    for (const auto& object : DoomedObjects(mobjControl)) leaving.insert(object.get());
  }
  const auto leaves = [&](const ModelObject& object) { return leaving.contains(&object); };
  FreeNames places(mobjWorkflow->Places, leaves), transitions(mobjWorkflow->Transitions, leaves);
  for (const auto& object : pcolObjects) {
    if (object->Kind() == ChartKind::Place) mNames.emplace(object.get(), places.Take(static_cast<const Node&>(*object).Name()));
    if (object->Kind() == ChartKind::Transition) mNames.emplace(object.get(), transitions.Take(static_cast<const Node&>(*object).Name()));
  }
}

void Pasting::ChoosePlace(const Objects& pcolObjects) {
  const auto from = PastePlace::CornerOf(pcolObjects);
  const PastePlace::Corner current{mobjControl.CurrentX, mobjControl.CurrentY};
  const auto to = mobjControl.Comfort.PasteKeepsOriginals ? PartsOf(mobjControl).PastePlace.Take(mobjControl) : current;
  msngShiftX = from.Left - to.Left;
  msngShiftY = from.Top - to.Top;
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
  Bind(mobjControl, *copy);
  mobjWorkflow->Notations.Add(copy, copy->Key);
  SelectCopy(*pobjFrom, copy);
}

template <class N>
void Pasting::PasteNode(const std::shared_ptr<N>& pobjFrom, Collection<N>& pcolNodes) {
  const auto copy = pobjFrom->Clone();
  copy->Workflow = mobjWorkflow;
  copy->AssignName(mNames.at(pobjFrom.get()));
  copy->Key = NextKey(pcolNodes, pcolNodes.KeyWord());
  copy->Left(copy->Left() - msngShiftX);
  copy->Top(copy->Top() - msngShiftY);
  Bind(mobjControl, *copy);
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
  const auto arc = pobjFrom.Clone(mobjWorkflow, place, transition);
  const bool inward = arc->ArcDirection == vntInArc;
  (inward ? place->OutArcs : place->InArcs).Add(arc, arc->Key);
  (inward ? transition->InArcs : transition->OutArcs).Add(arc, arc->Key);
  Bind(mobjControl, *arc);
  arc->Visible(true);
  arc->Draw();
}

void Pasting::PasteAll(const Objects& pcolObjects) {
  for (const auto& object : pcolObjects) {
    switch (object->Kind()) {
      case ChartKind::Notation:
        PasteNotation(std::static_pointer_cast<Notation>(object));
        break;
      case ChartKind::Transition:
        PasteNode(std::static_pointer_cast<Transition>(object), mobjWorkflow->Transitions);
        break;
      case ChartKind::Place:
        PasteNode(std::static_pointer_cast<Place>(object), mobjWorkflow->Places);
        break;
      default:
        break;
    }
  }
  for (const auto& object : pcolObjects) {
    if (object->Kind() == ChartKind::Arc) PasteArc(static_cast<const Arc&>(*object));
  }
}

void Pasting::MakeRoom() {
  if (!mobjControl.Comfort.PasteKeepsOriginals) return mobjControl.Delete();
  mobjControl.CurrentControl(nullptr);
  mobjControl.Selection(nullptr);
}

void Pasting::Paste() {
  const auto clipboard = mobjControl.Clipboard;
  if (!clipboard || clipboard->IsEmpty()) return;
  RequirePosition(mobjControl);
  const Objects objects = ChartObjectsIn(*clipboard);  // a copy, as deleting changes selection and clipboard
  mobjWorkflow = mobjControl.Workflow() ? mobjControl.Workflow() : std::make_shared<Workflow>();
  RequirePictures(objects);
  RequireKeys(objects);
  ChooseNames(objects);
  ChoosePlace(objects);
  if (!mobjControl.Workflow()) mobjControl.Workflow(mobjWorkflow);
  MakeRoom();
  PasteAll(objects);
  MakeSingleCurrent(mobjControl);
  mobjControl.Refresh();
  const auto pasted = mobjControl.Selection();
  mobjWorkflow->Dirty(true);
  RaiseLater(mobjControl, &Vantrel::OnPasted, pasted);
}

}  // namespace

void PasteClipboard(Vantrel& pobjControl) { Pasting(pobjControl).Paste(); }

}  // namespace vantrel

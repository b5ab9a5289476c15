#include "designer/Selecting.h"

#include <algorithm>
#include <unordered_set>

#include "designer/ChartObjects.h"
#include "designer/ControlParts.h"
#include "designer/gestures/ElementUnder.h"

namespace vantrel {

namespace {

template <class T>
void Unmark(const Collection<T>& pcolObjects) {
  for (typename Collection<T>::Cursor cursor(pcolObjects); T* object = cursor.Next();) {
    if (object->Selected()) object->Selected(false);
  }
}

bool IsInside(const Rect& pobjInner, const Rect& pobjOuter) {
  return pobjOuter.Left <= pobjInner.Left && pobjInner.Right <= pobjOuter.Right && pobjOuter.Top <= pobjInner.Top &&
         pobjInner.Bottom <= pobjOuter.Bottom;
}

template <class T>
const BoxElement* Shape(const T& pobjObject) {
  if constexpr (std::is_base_of_v<Node, T>) return pobjObject.Image.get();
  if constexpr (std::is_same_v<Elbow, T>) return pobjObject.Handle.get();
  if constexpr (std::is_same_v<Notation, T>) return pobjObject.TextControl.get();
}

// Adds the wanted objects of the collections, in the order of the parameters.
template <class Keep, class... T>
void Gather(ObjectCollection& pcolResult, Keep&& pKeep, const Collection<T>&... pcolObjects) {
  const auto gather = [&](const auto& objects) {
    for (const auto& object : objects) {
      if (pKeep(*object)) pcolResult.Add(object, object->Key);
    }
  };
  (gather(pcolObjects), ...);
}

void ClearMarks(const Workflow& pobjWorkflow) {
  Unmark(pobjWorkflow.Transitions);
  Unmark(pobjWorkflow.Places);
  Unmark(pobjWorkflow.Arcs);
  Unmark(pobjWorkflow.Elbows);
  Unmark(pobjWorkflow.Notations);
}

}  // namespace

void AddUnderKey(ObjectCollection& pcolObjects, const std::shared_ptr<ModelObject>& pobjObject) {
  const std::string key = KeyOf(*pobjObject);
  pcolObjects.Add(pobjObject, pcolObjects.Contains(key) ? std::string() : key);
}

void SetSelection(Vantrel& pobjControl, const std::shared_ptr<ObjectCollection>& pcolObjects) {
  const auto objects = pcolObjects;  // NOLINT(performance-unnecessary-copy-initialization): the caller's may be the control's own
  if (!pobjControl.Workflow()) return;
  if (!objects) {
    ClearMarks(*pobjControl.Workflow());
    PartsOf(pobjControl).Selection = std::make_shared<ObjectCollection>();
    return;
  }
  const auto before = PartsOf(pobjControl).Selection;
  if (before != objects) {
    for (const auto& object : *before) Select(*object, false);
  }
  for (const auto& object : *objects) Select(*object, true);
  PartsOf(pobjControl).Selection = objects;
}

void ReplaceSelection(Vantrel& pobjControl, const std::shared_ptr<ObjectCollection>& pcolObjects) {
  SetSelection(pobjControl, pcolObjects);
  const Element* current = pobjControl.CurrentControl().get();
  if (!pobjControl.Comfort.ChosenIsSeen || !current) return;
  const auto object = ObjectOf(pobjControl, *current);
  if (!object || !IsSelected(*object)) pobjControl.CurrentControl(nullptr);
}

void MakeSingleCurrent(Vantrel& pobjControl) {
  const auto selection = pobjControl.Selection();
  if (!pobjControl.Comfort.ChosenIsSeen || selection->Count() != 1) return;
  if (const auto element = ElementOf(*selection->First())) pobjControl.CurrentControl(element);
}

void AddToSelection(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjObject) {
  AddUnderKey(*PartsOf(pobjControl).Selection, pobjObject);
  Select(*pobjObject, true);
}

void SelectOnly(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjObject) {
  SetSelection(pobjControl, nullptr);
  AddToSelection(pobjControl, pobjObject);
}

void ForgetObjects(Vantrel& pobjControl, const std::vector<std::shared_ptr<ChartObject>>& pcolObjects) {
  const auto before = PartsOf(pobjControl).Selection;
  bool wasSelected = false;
  for (const auto& object : pcolObjects) {
    if (object == pobjControl.CurrentObject()) pobjControl.CurrentObject(nullptr);
    // Copying puts arcs into the selection without marking them.
    wasSelected = wasSelected || IsSelected(*object) || before->Find(KeyOf(*object)) == object;
  }
  if (!wasSelected || before->IsEmpty()) return;
  std::unordered_set<const ModelObject*> leaving;
  for (const auto& object : pcolObjects) leaving.insert(object.get());
  const auto rest = std::make_shared<ObjectCollection>();
  for (std::int32_t position = 1; position <= before->Count(); ++position) {
    const auto& object = before->Item(position);
    if (!leaving.contains(object.get())) rest->Add(object, before->KeyOf(position));
  }
  for (const auto& object : pcolObjects) Select(*object, false);
  PartsOf(pobjControl).Selection = rest;
}

std::shared_ptr<ObjectCollection> AllObjects(const Vantrel& pobjControl) {
  auto objects = std::make_shared<ObjectCollection>();
  const auto wanted = [&](const ChartObject& object) { return !pobjControl.Comfort.ChosenIsSeen || object.Kind() != ChartKind::Elbow; };
  const auto* w = pobjControl.Workflow().get();
  if (w) Gather(*objects, wanted, w->Transitions, w->Places, w->Elbows, w->Notations);
  return objects;
}

std::shared_ptr<ObjectCollection> ObjectsInside(const Vantrel& pobjControl, const Rect& pobjArea) {
  auto objects = std::make_shared<ObjectCollection>();
  const auto inside = [&](const auto& object) {
    if (pobjControl.Comfort.ChosenIsSeen && object.Kind() == ChartKind::Elbow) return false;
    const auto* shape = Shape(object);
    return shape && IsInside(shape->Bounds(), pobjArea);
  };
  const auto* w = pobjControl.Workflow().get();
  if (w) Gather(*objects, inside, w->Elbows, w->Transitions, w->Places, w->Notations);
  return objects;
}

}  // namespace vantrel

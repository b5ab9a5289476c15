#include "designer/Selecting.h"

#include <algorithm>
#include <unordered_set>

#include "designer/ChartObjects.h"
#include "designer/gestures/ElementUnder.h"

namespace vantrel {

namespace {

using Objects = std::unordered_set<const ModelObject*>;

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

}  // namespace

void Selecting::AddTo(ObjectCollection& pcolObjects, const std::shared_ptr<ModelObject>& pobjObject) {
  const std::string key = KeyOf(*pobjObject);
  pcolObjects.Add(pobjObject, pcolObjects.Contains(key) ? std::string() : key);
}

void Selecting::ClearMarks() const {
  const Workflow& workflow = *mobjControl.Workflow();
  Unmark(workflow.Transitions);
  Unmark(workflow.Places);
  Unmark(workflow.Arcs);
  Unmark(workflow.Elbows);
  Unmark(workflow.Notations);
}

void Selecting::Set(const std::shared_ptr<ObjectCollection>& pcolObjects) {
  const auto objects = pcolObjects;  // NOLINT(performance-unnecessary-copy-initialization): the caller's may be the control's own
  if (!mobjControl.Workflow()) return;
  if (!objects) {
    ClearMarks();
    mobjControl.mcolSelection = std::make_shared<ObjectCollection>();
    return;
  }
  const auto before = mobjControl.mcolSelection;
  if (before != objects) {
    for (const auto& object : *before) Select(*object, false);
  }
  for (const auto& object : *objects) Select(*object, true);
  mobjControl.mcolSelection = objects;
}

void Selecting::Replace(const std::shared_ptr<ObjectCollection>& pcolObjects) {
  Set(pcolObjects);
  const Element* current = mobjControl.CurrentControl().get();
  if (!mobjControl.Comfort.ChosenIsSeen || !current) return;
  const auto object = ObjectOf(mobjControl, *current);
  if (!object || !IsSelected(*object)) mobjControl.CurrentControl(nullptr);
}

void Selecting::MakeSingleCurrent() {
  const auto selection = mobjControl.Selection();
  if (!mobjControl.Comfort.ChosenIsSeen || selection->Count() != 1) return;
  if (const auto element = ElementOf(*selection->First())) mobjControl.CurrentControl(element);
}

void Selecting::Add(const std::shared_ptr<ModelObject>& pobjObject) {
  AddTo(*mobjControl.mcolSelection, pobjObject);
  Select(*pobjObject, true);
}

void Selecting::SelectOnly(const std::shared_ptr<ModelObject>& pobjObject) {
  Set(nullptr);
  Add(pobjObject);
}

void Selecting::Forget(const std::vector<std::shared_ptr<ChartObject>>& pcolObjects) {
  const auto before = mobjControl.mcolSelection;
  bool wasSelected = false;
  for (const auto& object : pcolObjects) {
    if (object == mobjControl.CurrentObject()) mobjControl.CurrentObject(nullptr);
    // Copying puts arcs into the selection without marking them.
    wasSelected = wasSelected || IsSelected(*object) || before->Find(KeyOf(*object)) == object;
  }
  if (!wasSelected || before->IsEmpty()) return;
  Objects leaving;
  for (const auto& object : pcolObjects) leaving.insert(object.get());
  const auto rest = std::make_shared<ObjectCollection>();
  for (std::int32_t position = 1; position <= before->Count(); ++position) {
    const auto& object = before->Item(position);
    if (!leaving.contains(object.get())) rest->Add(object, before->KeyOf(position));
  }
  for (const auto& object : pcolObjects) Select(*object, false);
  mobjControl.mcolSelection = rest;
}

std::shared_ptr<ObjectCollection> Selecting::All(const Workflow* pobjWorkflow, bool pblnBendPoints) {
  auto objects = std::make_shared<ObjectCollection>();
  const auto every = [&](const ModelObject& object) { return pblnBendPoints || !dynamic_cast<const Elbow*>(&object); };
  const auto* w = pobjWorkflow;
  if (w) Gather(*objects, every, w->Transitions, w->Places, w->Elbows, w->Notations);
  return objects;
}

std::shared_ptr<ObjectCollection> Selecting::InRectangle(const Workflow* pobjWorkflow, const Rect& pobjArea, bool pblnBendPoints) {
  auto objects = std::make_shared<ObjectCollection>();
  const auto inside = [&](const auto& object) {
    const auto* shape = Shape(object);
    if (!pblnBendPoints && shape && shape->Family() == ctlHandleFamily) return false;
    return shape && IsInside(shape->Bounds(), pobjArea);
  };
  const auto* w = pobjWorkflow;
  if (w) Gather(*objects, inside, w->Elbows, w->Transitions, w->Places, w->Notations);
  return objects;
}

}  // namespace vantrel

#include "designer/Copying.h"

#include <unordered_set>

#include "designer/ChartObjects.h"
#include "designer/ControlParts.h"
#include "designer/Selecting.h"

namespace vantrel {

namespace {

void AddInnerArcs(const Vantrel& pobjControl, ObjectCollection& pcolObjects) {
  const auto& workflow = pobjControl.Workflow();
  if (!workflow) return;
  std::unordered_set<const ModelObject*> selected;
  for (const auto& object : pcolObjects) selected.insert(object.get());
  for (const auto& arc : workflow->Arcs) {
    const bool inner = selected.contains(arc->Place.get()) && selected.contains(arc->Transition.get());
    if (inner && !selected.contains(arc.get())) AddUnderKey(pcolObjects, arc);
  }
}

}  // namespace

void CopySelection(Vantrel& pobjControl) {
  const auto selection = pobjControl.Selection();
  const bool isApart = selection->IsEmpty() || pobjControl.Comfort.PasteKeepsOriginals;
  const auto copied = isApart ? std::make_shared<ObjectCollection>() : selection;
  if (isApart) {
    for (const auto& object : *selection) AddUnderKey(*copied, object);
  }
  AddInnerArcs(pobjControl, *copied);
  pobjControl.Clipboard = copied;
  PartsOf(pobjControl).PastePlace.Copied(pobjControl, ChartObjectsIn(*copied));
}

}  // namespace vantrel

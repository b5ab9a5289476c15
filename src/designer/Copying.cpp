#include "designer/Copying.h"

#include <unordered_set>

#include "designer/PastePlace.h"
#include "designer/Selecting.h"

namespace vantrel {

void Copying::AddInnerArcs(ObjectCollection& pcolObjects) const {
  const auto workflow = mobjControl.Workflow();
  if (!workflow) return;
  std::unordered_set<const ModelObject*> selected;
  for (const auto& object : pcolObjects) selected.insert(object.get());
  for (const auto& arc : workflow->Arcs) {
    const bool inner = selected.contains(arc->Place.get()) && selected.contains(arc->Transition.get());
    if (inner && !selected.contains(arc.get())) Selecting::AddTo(pcolObjects, arc);
  }
}

void Copying::Copy() {
  const auto selection = mobjControl.Selection();
  const bool isApart = selection->IsEmpty() || mobjControl.Comfort.PasteKeepsOriginals;
  const auto copied = isApart ? std::make_shared<ObjectCollection>() : selection;
  if (isApart) {
    for (const auto& object : *selection) Selecting::AddTo(*copied, object);
  }
  AddInnerArcs(*copied);
  mobjControl.Clipboard = copied;
  PastePlace::Objects objects;
  for (const auto& object : *copied) objects.push_back(object);
  mobjControl.mobjPastePlace->Copied(mobjControl, objects);
}

}  // namespace vantrel

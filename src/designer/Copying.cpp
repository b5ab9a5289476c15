#include "designer/Copying.h"

#include <unordered_set>

#include "designer/CopiedArcs.h"
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
  if (selection->IsEmpty()) {
    mobjControl.Clipboard = std::make_shared<ObjectCollection>();
  } else {
    mobjControl.Clipboard = selection;
    AddInnerArcs(*selection);
  }
  KeepPaths(*mobjControl.Clipboard);
}

}  // namespace vantrel

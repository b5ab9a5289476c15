#include "designer/CopiedArcs.h"

#include <unordered_map>

#include "designer/ChartObjects.h"
#include "model/DesignerState.h"

namespace vantrel {

namespace {

struct KeptPath {
  std::weak_ptr<ModelObject> Original;  // the key may be another object's by now
  std::shared_ptr<Workflow> Chart;      // shown nowhere
  std::shared_ptr<Place> End;
  std::shared_ptr<Transition> OtherEnd;
  std::shared_ptr<Arc> Copy;
};

using KeptPaths = std::unordered_map<const ModelObject*, KeptPath>;

KeptPaths& Paths() {
  static KeptPaths paths;
  return paths;
}

bool HasPath(const Arc& pobjArc) {
  return pobjArc.Workflow && IsPartOf(pobjArc, *pobjArc.Workflow) && pobjArc.Place && pobjArc.Transition && !pobjArc.Segments().empty();
}

// Paths are cloned relative to the place: a bare one at the same spot stands for it.
KeptPath Take(const std::shared_ptr<ModelObject>& pobjOriginal, const Arc& pobjArc, const std::shared_ptr<Workflow>& pobjChart) {
  KeptPath path{pobjOriginal, pobjChart, std::make_shared<Place>(), std::make_shared<Transition>(), nullptr};
  path.End->Left(pobjArc.Place->Left());
  path.End->Top(pobjArc.Place->Top());
  path.Copy = pobjArc.Clone(pobjChart, path.End, path.OtherEnd);
  return path;
}

}  // namespace

void KeepPaths(const ObjectCollection& pcolObjects) {
  const DesignerStateScope scope;
  gobjVantrel = nullptr;  // these copies get no elements
  std::erase_if(Paths(), [](const auto& path) { return path.second.Original.expired(); });
  const auto chart = std::make_shared<Workflow>();
  for (const auto& object : pcolObjects) {
    const auto* arc = dynamic_cast<const Arc*>(object.get());
    if (arc && HasPath(*arc)) Paths().insert_or_assign(arc, Take(object, *arc, chart));
  }
}

const Arc* KeptPathOf(const Arc& pobjArc) {
  const auto found = Paths().find(&pobjArc);
  return found == Paths().end() || found->second.Original.expired() ? nullptr : found->second.Copy.get();
}

}  // namespace vantrel

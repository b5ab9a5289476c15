#include "designer/CopiedArcs.h"

#include <utility>

#include "designer/ChartObjects.h"
#include "model/DesignerState.h"

namespace vantrel {

namespace {

bool IsWhole(const Arc& pobjArc) {
  return pobjArc.Workflow && IsPartOf(pobjArc, *pobjArc.Workflow) && pobjArc.Place && pobjArc.Transition && !pobjArc.Segments().empty();
}

}  // namespace

// Paths are cloned relative to the place: a bare one at the same spot stands for it.
CopiedArcs::Copy CopiedArcs::Take(const Arc& pobjArc, const std::shared_ptr<Workflow>& pobjChart) {
  Copy copy{pobjChart, std::make_shared<Place>(), std::make_shared<Transition>(), nullptr};
  copy.End->Left(pobjArc.Place->Left());
  copy.End->Top(pobjArc.Place->Top());
  copy.Path = pobjArc.Clone(pobjChart, copy.End, copy.OtherEnd);
  return copy;
}

void CopiedArcs::Keep(const ObjectCollection& pcolObjects) {
  const DesignerStateScope scope;
  gobjVantrel = nullptr;  // these copies get no elements
  const auto chart = std::make_shared<Workflow>();
  std::unordered_map<const ModelObject*, Copy> copies;
  for (const auto& object : pcolObjects) {
    const auto* arc = dynamic_cast<const Arc*>(object.get());
    if (!arc) continue;
    if (IsWhole(*arc)) {
      copies.emplace(arc, Take(*arc, chart));
    } else if (const auto earlier = mCopies.find(arc); earlier != mCopies.end()) {
      copies.emplace(arc, earlier->second);
    }
  }
  mCopies = std::move(copies);
}

const Arc* CopiedArcs::CopyOf(const Arc& pobjArc) const {
  const auto found = mCopies.find(&pobjArc);
  return found == mCopies.end() ? nullptr : found->second.Path.get();
}

}  // namespace vantrel

#include "model/SingleDrawing.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "model/Arc.h"
#include "model/DesignerState.h"
#include "model/Workflow.h"

namespace vantrel {

namespace {

SingleDrawing* gobjOuter = nullptr;

// Positions at which an arc stands for the last time, in their order.
std::vector<std::size_t> LastOnes(const std::vector<Ref<Arc>>& pcolArcs) {
  std::vector<std::pair<const Arc*, std::size_t>> sorted;
  sorted.reserve(pcolArcs.size());
  for (std::size_t i = 0; i < pcolArcs.size(); ++i) {
    if (const Arc* arc = pcolArcs[i].get()) sorted.emplace_back(arc, i);
  }
  std::sort(sorted.begin(), sorted.end());
  std::vector<std::size_t> last;
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    if (i + 1 == sorted.size() || sorted[i + 1].first != sorted[i].first) last.push_back(sorted[i].second);
  }
  std::sort(last.begin(), last.end());
  return last;
}

}  // namespace

SingleDrawing::SingleDrawing() : mobjShown(gobjWorkflow) {
  if (!gobjOuter) gobjOuter = this;
}

SingleDrawing::~SingleDrawing() {
  try {
    Finish();
  } catch (const Error&) {
    // What was thrown first says more.
  }
}

void SingleDrawing::Finish() {
  if (gobjOuter != this) return;
  gobjOuter = nullptr;
  const auto waiting = std::exchange(mcolWaiting, {});
  for (const std::size_t position : LastOnes(waiting)) {
    if (Arc* const arc = waiting[position].get()) arc->Draw();
  }
}

bool SingleDrawing::Postpones(Arc& pobjArc) {
  if (!gobjOuter) return false;
  const Workflow* const shown = gobjOuter->mobjShown.get();
  if (!shown || gobjWorkflow.get() != shown || pobjArc.Workflow.get() != shown) return false;
  gobjOuter->mcolWaiting.emplace_back(&pobjArc);
  return true;
}

}  // namespace vantrel

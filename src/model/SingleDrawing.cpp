#include "model/SingleDrawing.h"

#include <cstddef>
#include <utility>

#include "model/Arc.h"
#include "model/Workflow.h"

namespace vantrel {

namespace {

SingleDrawing* gobjOuter = nullptr;

}  // namespace

SingleDrawing::SingleDrawing(Workflow& pobjWorkflow) : mobjWorkflow(&pobjWorkflow) {
  if (!gobjOuter) gobjOuter = this;
}

SingleDrawing::~SingleDrawing() {
  try {
    Finish();
  } catch (const Error&) {
    // The error thrown first says more.
  }
}

void SingleDrawing::Finish() {
  if (gobjOuter != this) return;
  gobjOuter = nullptr;
  const auto waiting = std::exchange(mcolWaiting, {});
  for (std::size_t turn = 0; turn < waiting.size(); ++turn) {
    Arc* const arc = waiting[turn].get();
    if (arc && arc->mlngTurn == turn) arc->Draw();
  }
}

bool SingleDrawing::Postpones(Arc& pobjArc) {
  if (!gobjOuter || !pobjArc.Workflow || !(pobjArc.Workflow == gobjOuter->mobjWorkflow)) return false;
  if (gobjOuter->mblnForgets) return true;
  pobjArc.mlngTurn = gobjOuter->mcolWaiting.size();
  gobjOuter->mcolWaiting.emplace_back(&pobjArc);
  return true;
}

}  // namespace vantrel

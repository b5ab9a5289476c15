#include "model/game/Enabling.h"

#include <algorithm>

#include "model/Workflow.h"
#include "model/game/TokenRules.h"

namespace vantrel {

// `pPasses(place, which)` answers for one input place, going by its free tokens or by all.
template <class Passes>
bool Enabling::Ask(Transition& pobjTransition, const Question& pQuestion, Passes&& pPasses) {
  bool taken = false;
  const bool all = pobjTransition.AllInputs([&](const Place& pobjPlace) {
    const bool passes = pPasses(pobjPlace, TokenRules::kFree);
    taken = !passes && TokenRules::HasTaken(pobjPlace);
    return passes;
  });
  const bool heldUp = taken && pobjTransition.AllInputs([&](const Place& pobjPlace) { return pPasses(pobjPlace, TokenRules::kAll); });
  if (heldUp || !HeldUp(pobjTransition).empty()) Remember(pobjTransition, pQuestion, heldUp);
  return all;
}

void Enabling::Remember(Transition& pobjTransition, const Question& pQuestion, bool pblnHeldUp) {
  auto& questions = pobjTransition.mcolHeldUp;
  const auto known = std::find(questions.begin(), questions.end(), pQuestion);
  if (pblnHeldUp && known == questions.end()) questions.push_back(pQuestion);
  if (!pblnHeldUp && known != questions.end()) questions.erase(known);
}

bool Enabling::Arrived(Transition& pobjTransition, const std::shared_ptr<WorkCase>& pobjCase, bool pblnTracking) {
  const auto complete = [&] {
    return Ask(pobjTransition, {pobjCase, false}, [&](const Place& pobjPlace, TokenRules::Which pWhich) {
      return TokenRules::Serves(pobjPlace, pobjCase.get(), pblnTracking, pWhich);
    });
  };
  if (!complete()) return false;
  bool shown = false;
  for (Collection<Arc>::Cursor inputs(pobjTransition.InArcs); const Arc* input = inputs.Next();) {
    shown |= TokenRules::MarkEnabled(*input->Place, pobjCase.get());
  }
  return !shown || complete();
}

bool Enabling::Left(Transition& pobjTransition, bool pblnTracking) {
  const auto passes = [&](const Place& pobjPlace, TokenRules::Which pWhich) {
    return pblnTracking ? TokenRules::HoldsMarked(pobjPlace, pWhich) : TokenRules::Holds(pobjPlace, pWhich);
  };
  if (!pblnTracking) return Ask(pobjTransition, {nullptr, true}, passes);
  bool all = true, settled = HeldUp(pobjTransition).empty();
  for (Collection<Arc>::Cursor inputs(pobjTransition.InArcs); const Arc* arc = inputs.Next();) {
    Place& place = *arc->Place;
    const bool holds = TokenRules::HoldsMarked(place);
    all = all && holds;
    settled = settled && (holds || !TokenRules::HasTaken(place)) && !place.Image;
    if (place.Image || place.CaseEnabled() != holds) place.CaseEnabled(holds);
  }
  return settled ? all : Ask(pobjTransition, {nullptr, true}, passes);
}

bool Enabling::AskAgain(Transition& pobjTransition, const Question& pQuestion, bool pblnTracking) {
  if (std::erase(pobjTransition.mcolHeldUp, pQuestion) == 0) return false;
  return pQuestion.ByDeparture ? Left(pobjTransition, pblnTracking) : Arrived(pobjTransition, pQuestion.Case, pblnTracking);
}

void Enabling::Settle(Transition& pobjTransition) {
  auto* workflow = pobjTransition.Workflow.get();
  if (!pobjTransition.Enabled() || !workflow || workflow->FiringStack.Contains(pobjTransition.Key)) return;
  const auto holds = [&](TokenRules::Which pWhich) {
    return pobjTransition.AllInputs([&](const Place& pobjPlace) { return TokenRules::Holds(pobjPlace, pWhich); });
  };
  const bool canFire = holds(TokenRules::kFree);
  if (!canFire && holds(TokenRules::kAll)) Remember(pobjTransition, {nullptr, true}, true);
  Switch(pobjTransition, canFire);
}

void Enabling::SettleAround(const Token& pobjToken) {
  const auto place = pobjToken.Place.Lock();
  if (!place) return;
  const bool tracking = TokenRules::CaseTracking(*place);
  for (Collection<Arc>::Cursor arcs(place->OutArcs); const Arc* arc = arcs.Next();) {
    const auto transition = arc->Transition.Lock();
    if (!transition) continue;
    const auto questions = HeldUp(*transition);
    for (const auto& question : questions) {
      if (AskAgain(*transition, question, tracking)) Switch(*transition, true);
    }
  }
}

}  // namespace vantrel

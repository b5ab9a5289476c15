#include "model/game/Departure.h"

#include "model/Workflow.h"
#include "model/game/CaseIndex.h"
#include "model/game/Firing.h"
#include "model/game/SubflowRun.h"
#include "model/game/TokenRules.h"

namespace vantrel {

Reevaluation::Reevaluation(std::shared_ptr<Place> pobjPlace)
    : mobjPlace(std::move(pobjPlace)), mArcs(mobjPlace->OutArcs), mblnTracking(TokenRules::CaseTracking(*mobjPlace)) {}

bool Reevaluation::HasAllInputs(Transition& pobjTransition) const {
  if (!mblnTracking) {
    return pobjTransition.AllInputs([](const Place& pobjPlace) { return TokenRules::First(pobjPlace) != nullptr; });
  }
  bool all = true;
  Collection<Arc>::Cursor inputs(pobjTransition.InArcs);
  while (const Arc* arc = inputs.Next()) {
    Place& place = *arc->Place;
    const bool holds = TokenRules::HoldsEnabled(place);
    if (place.Image || place.CaseEnabled() != holds) place.CaseEnabled(holds);
    all = all && holds;
  }
  return all;
}

bool Reevaluation::Advance(TokenGame& pobjGame) {
  while (const Arc* arc = mArcs.Next()) {
    Transition* transition = arc->Transition.get();
    if (!transition) continue;
    const auto keeper = transition->Visible() ? transition->Share() : nullptr;  // drawing lets the user do things
    if (!transition->SwitchEnabled(HasAllInputs(*transition))) continue;
    pobjGame.Call<Firing>(transition->Share(), nullptr);
    return true;
  }
  return false;
}

Departure::Departure(std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken)
    : Reevaluation(std::move(pobjPlace)), mobjToken(std::move(pobjToken)) {}

bool Departure::Advance(TokenGame& pobjGame) {
  if (!mblnTaken) {
    mblnTaken = true;
    Take();
  }
  return Reevaluation::Advance(pobjGame);
}

void Departure::Take() {
  auto& tokens = mobjPlace->Tokens();
  const bool unnamed = !mobjToken || mobjToken->Key.empty();
  const auto token = unnamed ? tokens.TakeFirst() : tokens.Take(mobjToken->Key);
  if (auto* cases = mobjPlace->mobjCases.get()) cases->Removed(*mobjPlace, *token);
  if (token->mblnTaken) ForgetTaken(*token, *mobjPlace);
  mobjPlace->TokenCount(static_cast<float>(tokens.Count()));
  mobjPlace->Draw();
}

// Somebody takes away by hand what a running subflow had taken: that run has less to consume in the end.
void Departure::ForgetTaken(Token& pobjToken, const Place& pobjPlace) {
  pobjToken.mblnTaken = false;
  for (Collection<Arc>::Cursor arcs(pobjPlace.OutArcs); const Arc* arc = arcs.Next();) {
    if (auto* transition = arc->Transition.get()) SubflowRun::Forget(*transition, pobjToken);
  }
}

}  // namespace vantrel

#include "model/game/Departure.h"

#include "model/Workflow.h"
#include "model/game/Enabling.h"
#include "model/game/Firing.h"
#include "model/game/TokenRules.h"

namespace vantrel {

Reevaluation::Reevaluation(std::shared_ptr<Place> pobjPlace)
    : mobjPlace(std::move(pobjPlace)), mArcs(mobjPlace->OutArcs), mblnTracking(TokenRules::CaseTracking(*mobjPlace)) {}

bool Reevaluation::Advance(TokenGame& pobjGame) {
  while (const Arc* arc = mArcs.Next()) {
    Transition* transition = arc->Transition.get();
    if (!transition) continue;
    const auto keeper = transition->Visible() ? transition->Share() : nullptr;  // drawing lets the user do things
    if (!Enabling::Switch(*transition, Enabling::Left(*transition, mblnTracking))) continue;
    pobjGame.Call<Firing>(transition->Share(), nullptr);
    return true;
  }
  return false;
}

Departure::Departure(std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken, Reason pReason)
    : Reevaluation(std::move(pobjPlace)), mobjToken(std::move(pobjToken)), mReason(pReason) {}

bool Departure::Advance(TokenGame& pobjGame) {
  if (!mblnTaken) {
    mblnTaken = true;
    Take();
  }
  return Reevaluation::Advance(pobjGame);
}

void Departure::Take() {
  const bool lies = mReason == kByHand || TokenRules::LiesIn(*mobjPlace, *mobjToken);
  if (!lies) return;  // taken out of the collection itself
  const auto token = TokenRules::Remove(*mobjPlace, mobjToken.get());
  if (mReason == kByHand) {
    for (Collection<Arc>::Cursor arcs(mobjPlace->OutArcs); const Arc* arc = arcs.Next();) {
      if (const auto* transition = arc->Transition.get()) Reservation::Forget(*transition, *token);
    }
  }
  mobjPlace->TokenCount(static_cast<float>(mobjPlace->Tokens().Count()));
  mobjPlace->Draw();
}

}  // namespace vantrel

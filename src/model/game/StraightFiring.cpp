#include "model/game/StraightFiring.h"

#include <algorithm>
#include <utility>

#include "model/DesignerState.h"
#include "model/game/Enabling.h"
#include "model/game/TokenRules.h"

namespace vantrel {

namespace {

// What a firing has chosen; the places keep it alive. No straight firing runs inside another, so one list is enough.
std::vector<Token*> gcolChosen;

}  // namespace

StraightFiring::StraightFiring(Workflow& pobjWorkflow, Transition& pobjTransition)
    : mWorkflow(pobjWorkflow), mTransition(pobjTransition), mblnTracking(TokenRules::CaseTracking(pobjTransition)) {}

StraightFiring::~StraightFiring() {
  GiveBack();
  gcolChosen.clear();
}

void StraightFiring::GiveBack() {
  for (auto at = mlngGone; at < gcolChosen.size(); ++at) TokenRules::GiveBack(*gcolChosen[at]);
}

bool StraightFiring::FireNext(Workflow& pobjWorkflow) {
  auto& stack = pobjWorkflow.FiringStack;
  if (stack.IsEmpty() || pobjWorkflow.Designer().UseMode == vntStepTest) return false;
  if (pobjWorkflow.OnFiring.HasListeners() || pobjWorkflow.OnTokenAdded.HasListeners()) return false;
  Transition& transition = *stack.First();
  StraightFiring firing(pobjWorkflow, transition);
  if (!firing.IsPlain() || !firing.Choose()) return false;
  const auto keeper = stack.TakeFirst();
  firing.Fire();
  return true;
}

bool StraightFiring::IsPlain() {
  const OutputTypes output = mTransition.OutputType();
  if (output == vntSelect || output == vntDistribute || output == vntProgrammed || mTransition.Object()) return false;
  if (mTransition.mFiringsUnderWay != 0 || !IsPlain(mTransition) || !(mTransition.Workflow == &mWorkflow)) return false;
  if (mblnTracking && !(mTransition.TriggerType() == vntUser && mWorkflow.Designer().Host->TakesFirstCase())) return false;
  return HasPlainInputs() && HasPlainOutputs();
}

bool StraightFiring::IsPlain(const Transition& pobjTransition) {
  return !pobjTransition.Visible() && pobjTransition.TriggerType() != vntAutomatic && Enabling::HeldUp(pobjTransition).empty();
}

template <class Ask>
bool StraightFiring::IsPlain(const Place& pobjPlace, Ask&& pIsPlainConsumer) const {
  if (!(pobjPlace.Workflow == &mWorkflow) || pobjPlace.Visible() || pobjPlace.Image) return false;
  return pobjPlace.OutArcs.All([&](const Arc& pobjArc) {
    auto* const consumer = pobjArc.Transition.get();
    return !consumer || consumer == &mTransition || (IsPlain(*consumer) && pIsPlainConsumer(*consumer));
  });
}

bool StraightFiring::HasPlainInputs() const {
  return mTransition.InArcs.All([&](const Arc& pobjArc) {
    const auto* place = pobjArc.Place.get();
    return place && IsPlain(*place, [&](const Transition& consumer) { return !mblnTracking || MarksQuietly(consumer); });
  });
}

bool StraightFiring::HasPlainOutputs() {
  const auto* const end = mWorkflow.EndPlace().get();
  return !mTransition.OutArcs.IsEmpty() && mTransition.OutArcs.All([&](const Arc& pobjArc) {
    const auto* place = pobjArc.Place.get();
    return place && place != end &&
           IsPlain(*place, [&](Transition& consumer) { return IsHeldUp(consumer, *place) || MarksQuietly(consumer); });
  });
}

// Marking the inputs of a transition draws them where they are shown.
bool StraightFiring::MarksQuietly(const Transition& pobjConsumer) {
  return pobjConsumer.InArcs.All([](const Arc& pobjArc) {
    const auto* place = pobjArc.Place.get();
    return place && !place->Image;
  });
}

// What this firing produces for one place cannot complete the inputs: another place is empty and stays so.
bool StraightFiring::IsHeldUp(Transition& pobjConsumer, const Place& pobjOutput) {
  if (mTransition.OutArcs.Count() != 1 || pobjConsumer.InArcs.Count() == 1) return false;
  const bool heldUp = !pobjConsumer.AllInArcs([&](const Arc& pobjArc) {
    const auto* const place = pobjArc.Place.get();
    return !place || place == &pobjOutput || !place->Tokens().IsEmpty();
  });
  if (heldUp) mobjHeldUp = &pobjConsumer;
  return heldUp;
}

bool StraightFiring::Choose() {
  if (mblnTracking && !ChooseCase()) return false;
  return mTransition.InArcs.All([&](const Arc& pobjArc) {
    Place& place = *pobjArc.Place;
    Token* const token = mblnTracking ? TokenRules::NextOf(place, mobjCase.get()) : TokenRules::Next(place);
    if (!token || !(token->Place == &place) || token->Run().IsSet() || !TokenRules::LiesIn(place, *token)) return false;
    TokenRules::Take(place, *token);
    gcolChosen.push_back(token);
    return true;
  });
}

// The case of the first token of the scarcest place that all places hold.
bool StraightFiring::ChooseCase() {
  const Place* scarcest = nullptr;
  std::int32_t fewest = 0;
  mTransition.InArcs.All([&](const Arc& pobjArc) {
    const auto count = TokenRules::FreeCount(*pobjArc.Place);
    if (!scarcest || count < fewest) scarcest = pobjArc.Place.get();
    fewest = std::min(count, scarcest == pobjArc.Place.get() ? count : fewest);
    return true;
  });
  if (!scarcest) return false;
  TokenRules::VisitFree(*scarcest, [&](const Token& pobjToken) {
    const auto* workCase = pobjToken.WorkCase.get();
    const bool everywhere =
        workCase && mTransition.InArcs.All([&](const Arc& pobjArc) { return TokenRules::HoldsOf(*pobjArc.Place, workCase); });
    if (everywhere) mobjCase = pobjToken.WorkCase;
    return !everywhere;
  });
  return mobjCase != nullptr;
}

template <class Step>
void StraightFiring::Attempt(Step&& pStep) {
  try {
    pStep();
  } catch (const Error&) {
    if (!mblnTracking) throw;
  }
}

void StraightFiring::Fire() {
  try {
    Produce();
    Withdraw();
  } catch (const Error& error) {
    Settle();
    if (error.Number != vntErrInvalidCall) gobjVantrel->Tell(error.Description);
  }
}

void StraightFiring::Settle() {
  GiveBack();
  Enabling::Settle(mTransition);
  for (auto at = mlngGone; at < gcolChosen.size(); ++at) Enabling::SettleAround(*gcolChosen[at]);
  gcolChosen.clear();
}

void StraightFiring::Produce() {
  mTransition.OutArcs.All([&](const Arc& pobjArc) {
    Attempt([&] {
      Place& place = *pobjArc.Place;
      const auto token = mWorkflow.MakeToken(place, &mTransition, mobjCase, mdtmNow);
      mblnOutputDone = true;
      TokenRules::Add(place, token);
      Put(place);
    });
    return true;
  });
}

void StraightFiring::Put(Place& pobjPlace) {
  pobjPlace.TokenCount(static_cast<float>(pobjPlace.Tokens().Count()));
  pobjPlace.OutArcs.All([&](const Arc& pobjArc) {
    auto* const consumer = pobjArc.Transition.get();
    if (consumer && consumer != mobjHeldUp && IsEnabledBy(*consumer, pobjPlace)) Switch(*consumer, true);
    return true;
  });
}

bool StraightFiring::NeedsOnly(const Transition& pobjConsumer, const Place& pobjPlace) {
  const auto& inputs = pobjConsumer.InArcs;
  return inputs.Count() == 1 && inputs.First()->Place == &pobjPlace && Enabling::HeldUp(pobjConsumer).empty();
}

// The token that has just arrived serves itself.
bool StraightFiring::IsEnabledBy(Transition& pobjConsumer, Place& pobjPlace) const {
  if (!NeedsOnly(pobjConsumer, pobjPlace)) return Enabling::Arrived(pobjConsumer, mobjCase, mblnTracking);
  TokenRules::MarkEnabled(pobjPlace, mobjCase.get());
  return true;
}

void StraightFiring::Switch(Transition& pobjTransition, bool pblnEnabled) {
  if (&pobjTransition != &mTransition) {
    Enabling::Switch(pobjTransition, pblnEnabled);
  } else if (pblnEnabled || mblnWaits) {
    Enabling::Switch(mTransition, mblnWaits = pblnEnabled);
  } else {
    mTransition.mblnEnabled = false;  // it was taken off the stack to be fired
  }
}

void StraightFiring::Withdraw() {
  if (!mblnOutputDone) return Settle();
  while (mlngGone < gcolChosen.size()) {
    Token& token = *gcolChosen[mlngGone++];
    token.ConsumeTransition = &mTransition;
    token.Dirty = true;
    Attempt([&] { Leave(*token.Place, token); });
    token.DateConsumed = mdtmNow;
  }
}

// As Enabling::Left tells.
bool StraightFiring::StaysEnabled(Transition& pobjConsumer, Place& pobjPlace) {
  if (!mblnTracking && NeedsOnly(pobjConsumer, pobjPlace) && !TokenRules::HasTaken(pobjPlace)) return TokenRules::Holds(pobjPlace);
  return &pobjConsumer == &mTransition ? CanFireAgain(pobjPlace) : Enabling::Left(pobjConsumer, mblnTracking);
}

// The steps ask all inputs of the transition for each departure. Between the first time and the last, only the place that has
// lost a token can have changed, and tokens only leave.
bool StraightFiring::CanFireAgain(Place& pobjPlace) {
  if (mlngGone == 1 || mlngGone == gcolChosen.size()) return mblnCanFireAgain = Enabling::Left(mTransition, mblnTracking);
  const bool holds = mblnTracking ? TokenRules::HoldsMarked(pobjPlace) : TokenRules::Holds(pobjPlace);
  if (mblnTracking) pobjPlace.CaseEnabled(holds);
  return mblnCanFireAgain = mblnCanFireAgain && holds;
}

void StraightFiring::Leave(Place& pobjPlace, const Token& pobjToken) {
  auto token = TokenRules::Remove(pobjPlace, &pobjToken);
  if (token.use_count() == 1) mcolOrphans.push_back(std::move(token));
  pobjPlace.TokenCount(static_cast<float>(pobjPlace.Tokens().Count()));
  pobjPlace.OutArcs.All([&](const Arc& pobjArc) {
    auto* const consumer = pobjArc.Transition.get();
    if (consumer) Switch(*consumer, StaysEnabled(*consumer, pobjPlace));
    return true;
  });
}

}  // namespace vantrel

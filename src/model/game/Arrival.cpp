#include "model/game/Arrival.h"

#include "model/Workflow.h"
#include "model/game/CaseEnd.h"
#include "model/game/CaseIndex.h"
#include "model/game/Firing.h"
#include "model/game/TokenRules.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

// Drawing lets the user do things.
std::shared_ptr<Transition> KeeperOf(Transition& pobjTransition) { return pobjTransition.Visible() ? pobjTransition.Share() : nullptr; }

}  // namespace

Arrival::Arrival(std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken)
    : mobjPlace(std::move(pobjPlace)),
      mobjToken(std::move(pobjToken)),
      mArcs(mobjPlace->OutArcs),
      mblnTracking(TokenRules::CaseTracking(*mobjPlace)) {}

void Arrival::Put() {
  Token& token = *mobjToken;
  if (token.Key.empty()) {
    const auto* workflow = mobjPlace->Workflow.get();
    token.Key = NextKey(workflow ? workflow->Tokens : mobjPlace->Tokens(), "Token");
  }
  if (token.Name.empty()) token.Name = token.Key;
  mobjPlace->Tokens().Add(mobjToken, token.Key);
  if (auto* cases = mobjPlace->mobjCases.get()) cases->Added(*mobjPlace, mobjToken);
  mobjCase = token.WorkCase;
  if (!(token.Place == mobjPlace.get())) token.Place = mobjPlace.get();
  mobjPlace->TokenCount(static_cast<float>(mobjPlace->Tokens().Count()));
}

bool Arrival::CompletesInputs(Transition& pobjTransition) const {
  return pobjTransition.AllInputs([&](const Place& pobjPlace) { return TokenRules::Serves(pobjPlace, mobjCase.get(), mblnTracking); });
}

bool Arrival::Enable(Transition& pobjTransition) const {
  for (Collection<Arc>::Cursor inputs(pobjTransition.InArcs); const Arc* input = inputs.Next();) {
    TokenRules::MarkEnabled(*input->Place, mobjCase.get());
  }
  return pobjTransition.SwitchEnabled(true);
}

void Arrival::PutBack(std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken) {
  Arrival arrival(std::move(pobjPlace), std::move(pobjToken));
  arrival.Put();
  while (const Arc* arc = arrival.mArcs.Next()) {
    Transition* transition = arc->Transition.get();
    if (!transition || !arrival.CompletesInputs(*transition)) continue;
    const auto keeper = KeeperOf(*transition);
    arrival.Enable(*transition);
  }
}

bool Arrival::Advance(TokenGame& pobjGame) {
  if (mStage == kPut) {
    Put();
    mStage = kEnable;
  }
  while (mStage == kEnable) {
    const Arc* arc = mArcs.Next();
    if (!arc) {
      mStage = kReport;
      break;
    }
    Transition* transition = arc->Transition.get();
    if (!transition || !CompletesInputs(*transition)) continue;
    const auto keeper = KeeperOf(*transition);
    if (!Enable(*transition)) continue;
    pobjGame.Call<Firing>(transition->Share(), nullptr);
    return true;
  }
  if (mStage == kReport) {
    mStage = kEnd;
    Report(pobjGame);
    return true;
  }
  if (auto* workflow = mobjPlace->Workflow.get(); workflow && workflow->EndPlace() == mobjPlace.get()) {
    mobjPlace->OnCaseFinished.Raise(mobjToken);
  }
  return false;
}

void Arrival::Report(TokenGame& pobjGame) {
  auto* workflow = mobjPlace->Workflow.get();
  if (!workflow) return;
  const bool endsHere = workflow->EndPlace() == mobjPlace.get();
  if (!endsHere && !workflow->OnTokenAdded.HasListeners()) return;
  const auto keeper = workflow->shared_from_this();
  workflow->TokenAdded(mobjPlace, mobjToken);
  if (workflow->EndPlace() == mobjPlace.get()) pobjGame.Call<CaseEnd>(keeper, mobjPlace, mobjToken);
}

}  // namespace vantrel

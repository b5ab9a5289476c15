#include "model/game/Arrival.h"

#include "model/Workflow.h"
#include "model/game/CaseEnd.h"
#include "model/game/Enabling.h"
#include "model/game/Firing.h"
#include "model/game/TokenRules.h"
#include "util/Lookup.h"

namespace vantrel {

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
  TokenRules::Add(*mobjPlace, mobjToken);
  mobjCase = token.WorkCase;
  if (!(token.Place == mobjPlace.get())) token.Place = mobjPlace.get();
  mobjPlace->TokenCount(static_cast<float>(mobjPlace->Tokens().Count()));
}

std::shared_ptr<Transition> Arrival::EnableNext() {
  while (const Arc* arc = mArcs.Next()) {
    Transition* transition = arc->Transition.get();
    if (!transition) continue;
    const auto keeper = transition->Visible() ? transition->Share() : nullptr;  // drawing lets the user do things
    if (!Enabling::Arrived(*transition, mobjCase, mblnTracking)) continue;
    if (Enabling::Switch(*transition, true)) return transition->Share();
  }
  return nullptr;
}

void Arrival::PutBack(std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken) {
  Arrival arrival(std::move(pobjPlace), std::move(pobjToken));
  arrival.Put();
  while (arrival.EnableNext()) continue;
}

bool Arrival::Advance(TokenGame& pobjGame) {
  if (mStage == kPut) {
    Put();
    mStage = kEnable;
  }
  if (mStage == kEnable) {
    if (auto transition = EnableNext()) {
      pobjGame.Call<Firing>(std::move(transition), nullptr);
      return true;
    }
    mStage = kReport;
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

#include "model/game/CaseEnd.h"

#include "model/DesignerState.h"
#include "model/game/Departure.h"
#include "model/game/SubflowDelivery.h"

namespace vantrel {

CaseEnd::CaseEnd(std::shared_ptr<Workflow> pobjWorkflow, std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken)
    : mobjWorkflow(std::move(pobjWorkflow)), mobjPlace(std::move(pobjPlace)), mobjToken(std::move(pobjToken)) {}

// A run delivers once. Its other tokens that reach the end place come too late.
bool CaseEnd::IsLate() const { return mobjToken->Run().Expired(); }

bool CaseEnd::Advance(TokenGame& pobjGame) {
  if (mStage == kClear) {
    mStage = kTell;
    if (!mobjWorkflow->KeepHistory) {
      pobjGame.Call<Departure>(mobjPlace, mobjToken, Departure::kByHand);
      return true;
    }
  }
  if (mStage == kTell) {
    mStage = kDeliver;
    if (const auto parent = mobjWorkflow->SubflowTransition.Lock()) {
      if (IsLate()) return false;
      pobjGame.Call<SubflowDelivery>(parent, mobjToken, SubflowDelivery::kAllAtOnce);
      return true;
    }
    mobjWorkflow->OnCaseFinished.Raise(mobjToken);
    FindReceivers();
  }
  if (mcolReceivers.empty()) return false;
  const auto receiver = mcolReceivers.back();
  mcolReceivers.pop_back();
  pobjGame.Call<SubflowDelivery>(receiver, mobjToken, SubflowDelivery::kOneByOne);
  return true;
}

// The transition whose run the token belongs to; for a token that a host put in by hand the one with a run of its case; with
// no run anywhere, every transition that watches this workflow.
void CaseEnd::FindReceivers() {
  if (IsLate()) return;
  if (const auto* run = mobjToken->Run().get()) {
    if (auto owner = run->Owner().Lock()) mcolReceivers.push_back(std::move(owner));
    return;
  }
  const auto observers = mobjWorkflow->mcolObservers;
  for (const auto& observer : observers) {
    if (!observer || !SubflowRun::OldestOf(*observer, mobjToken->WorkCase.get())) continue;
    mcolReceivers.push_back(observer.Lock());
    return;
  }
  for (auto observer = observers.rbegin(); observer != observers.rend(); ++observer) {
    if (auto transition = observer->Lock()) mcolReceivers.push_back(std::move(transition));
  }
}

}  // namespace vantrel

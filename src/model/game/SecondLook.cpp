#include "model/game/SecondLook.h"

#include "model/Workflow.h"
#include "model/game/Firing.h"
#include "model/game/TokenRules.h"

namespace vantrel {

SecondLook::SecondLook(std::shared_ptr<Place> pobjPlace)
    : mobjPlace(std::move(pobjPlace)), mArcs(mobjPlace->OutArcs), mblnTracking(TokenRules::CaseTracking(*mobjPlace)) {}

bool SecondLook::NextTransition() {
  const Arc* arc = mArcs.Next();
  if (!arc) return false;
  mobjTransition = arc->Transition.Lock();
  mcolQuestions.clear();
  if (mobjTransition) mcolQuestions = Enabling::HeldUp(*mobjTransition);
  mlngNext = 0;
  return true;
}

bool SecondLook::Advance(TokenGame& pobjGame) {
  do {
    while (mlngNext < mcolQuestions.size()) {
      if (!Enabling::AskAgain(*mobjTransition, mcolQuestions[mlngNext++], mblnTracking)) continue;
      if (!Enabling::Switch(*mobjTransition, true)) continue;
      pobjGame.Call<Firing>(mobjTransition, nullptr);
      return true;
    }
  } while (NextTransition());
  return false;
}

}  // namespace vantrel

#include "model/game/FiringNext.h"

#include "model/DesignerState.h"
#include "model/game/Firing.h"
#include "util/MsgBox.h"

namespace vantrel {

FiringNext::FiringNext(std::shared_ptr<Workflow> pobjWorkflow, std::shared_ptr<Transition> pobjTransition)
    : mobjWorkflow(std::move(pobjWorkflow)), mobjTransition(std::move(pobjTransition)) {}

bool FiringNext::Advance(TokenGame& pobjGame) {
  if (mblnStarted) return false;
  mblnStarted = true;
  if (gintUseMode == vntStepTest && MsgBox("Fire next?", vntOKCancel, "Step Testing") == vntCancel) {
    gobjVantrel->UseMode(vntDesign);
    return false;
  }
  if (!mobjTransition) mobjTransition = FirstWaiting();
  mobjWorkflow->FiringStack.Remove(mobjTransition->Key);
  pobjGame.Call<Firing>(std::move(mobjTransition), nullptr);
  return true;
}

// When a subflow ends inside a firing and asks for the next transition, one that has yet to consume its tokens waits its turn.
std::shared_ptr<Transition> FiringNext::FirstWaiting() const {
  for (Collection<Transition>::Cursor stack(mobjWorkflow->FiringStack); const Transition* transition = stack.Next();) {
    if (transition->mFiringsUnderWay == 0) return stack.Shared();
  }
  throw Error(vntErrInvalidCall);
}

bool FiringNext::Absorb(const Error& pobjError) {
  if (pobjError.Number == vntErrInvalidCall) return true;
  if (pobjError.Number == vntErrOutOfStack && !TokenGame::IsCalledFromOutside(*this)) return false;
  gobjVantrel->Tell(pobjError.Description);
  return true;
}

}  // namespace vantrel

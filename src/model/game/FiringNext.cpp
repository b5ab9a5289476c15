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
  mobjGame = &pobjGame;
  if (gintUseMode == vntStepTest && MsgBox("Fire next?", vntOKCancel, "Step Testing") == vntCancel) {
    gobjVantrel->UseMode(vntDesign);
    return false;
  }
  if (!mobjTransition) mobjTransition = mobjWorkflow->FiringStack.First();
  mobjWorkflow->FiringStack.Remove(mobjTransition->Key);
  pobjGame.Call<Firing>(std::move(mobjTransition), nullptr);
  return true;
}

bool FiringNext::Absorb(const Error& pobjError) {
  if (pobjError.Number == vntErrInvalidCall) return true;
  if (pobjError.Number == vntErrOutOfStack && !mobjGame->IsOutermost(*this)) return false;
  MsgBox(pobjError.Description);
  return true;
}

}  // namespace vantrel

// The next transition on the firing stack fires.
#pragma once

#include <memory>

#include "model/Workflow.h"
#include "model/game/TokenGame.h"

namespace vantrel {

/// Takes a transition off the workflow's firing stack and fires it. Errors end here: silently when there was nothing to fire, otherwise in
/// a message box. A loop inside a larger operation ends that operation.
class FiringNext final : public GameStep {
 public:
  FiringNext(std::shared_ptr<Workflow> pobjWorkflow, std::shared_ptr<Transition> pobjTransition);
  bool Advance(TokenGame& pobjGame) override;
  bool Absorb(const Error& pobjError) override;

 private:
  std::shared_ptr<Transition> FirstWaiting() const;

  std::shared_ptr<Workflow> mobjWorkflow;
  std::shared_ptr<Transition> mobjTransition;
  bool mblnStarted = false;
};

}  // namespace vantrel

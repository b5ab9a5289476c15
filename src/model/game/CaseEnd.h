// A token has reached the end place of its workflow.
#pragma once

#include <memory>
#include <vector>

#include "model/Workflow.h"
#include "model/game/SubflowRun.h"
#include "model/game/TokenGame.h"

namespace vantrel {

/// Takes the token out of the end place unless history is kept. Then raises the event, or delivers the output of the transition that
/// runs the workflow.
class CaseEnd final : public GameStep {
 public:
  CaseEnd(std::shared_ptr<Workflow> pobjWorkflow, std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken);
  bool Advance(TokenGame& pobjGame) override;

 private:
  enum Stage : std::uint8_t { kClear, kTell, kDeliver };
  void FindReceivers();
  bool IsLate() const;

  std::shared_ptr<Workflow> mobjWorkflow;
  std::shared_ptr<Place> mobjPlace;
  std::shared_ptr<Token> mobjToken;
  std::vector<std::shared_ptr<Transition>> mcolReceivers;  // last one first
  Stage mStage = kClear;
};

}  // namespace vantrel

// A subflow has finished, and its transition delivers.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "model/Workflow.h"
#include "model/game/SubflowRun.h"
#include "model/game/TokenGame.h"

namespace vantrel {

/// Produces the output of a transition whose subflow has finished with a token, takes the tokens that the firing chose out of their
/// places, and goes on with the transition's workflow.
class SubflowDelivery final : public GameStep {
 public:
  enum Manner : std::uint8_t {
    kOneByOne,  ///< the transition heard of a finished case: each output is made and added, then the next transition fires
    kAllAtOnce  ///< the subflow was told whom it runs for: all outputs are made, by the shown workflow, before the first is added
  };
  SubflowDelivery(std::shared_ptr<Transition> pobjTransition, std::shared_ptr<Token> pobjFinished, Manner pManner);
  bool Advance(TokenGame& pobjGame) override;
  bool Absorb(const Error& pobjError) override;

 private:
  enum Stage : std::uint8_t { kStart, kProduce, kAdd, kWithdraw, kDated, kGoOn, kEnd };
  void EndRun();
  std::shared_ptr<Token> MakeToken(const Arc& pobjArc, Workflow& pobjWorkflow) const;
  void MakeAll();
  Stage Produce(TokenGame& pobjGame);
  Stage Add(TokenGame& pobjGame);
  Stage Withdraw(TokenGame& pobjGame);

  std::shared_ptr<Transition> mobjTransition;
  std::shared_ptr<Token> mobjFinished;
  Ref<SubflowRun> mobjOuter;
  std::optional<Reservation> mChosen;  // what the firing chose; nothing without a run
  Firing* mobjStarter = nullptr;       // the firing that started the subflow, while it is under way
  std::vector<std::shared_ptr<Token>> mcolMade;
  Collection<Arc>::Cursor mOutputs;
  std::uint32_t mlngNext = 0;
  Manner mManner;
  Stage mStage = kStart;
};

}  // namespace vantrel

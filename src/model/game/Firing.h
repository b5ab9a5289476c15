// A transition fires.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/Transition.h"
#include "model/game/SubflowRun.h"
#include "model/game/TokenGame.h"

namespace vantrel {

/// Chooses a case, consumes, and either starts the embedded workflow or produces output. Output tokens arrive before the
/// consumed ones leave.
class Firing final : public GameStep {
 public:
  Firing(std::shared_ptr<Transition> pobjTransition, std::shared_ptr<WorkCase> pobjCase);
  ~Firing() override;
  bool Advance(TokenGame& pobjGame) override;
  /// With case tracking on, what fails after the choice of the case is passed over. A loop is not.
  bool Absorb(const Error& pobjError) override;

 private:
  enum Stage : std::uint8_t { kConsume, kStartSubflow, kFireSubflow, kReleaseSubflow, kPrepareOutput, kProduce, kWithdraw, kDated, kEnd };

  void DoStage(TokenGame& pobjGame);
  // Each does one stage and names the next.
  Stage Consume();
  Stage StartSubflow(TokenGame& pobjGame);
  Stage FireSubflow(TokenGame& pobjGame);
  Stage ReleaseSubflow(TokenGame& pobjGame);
  Stage PrepareOutput(TokenGame& pobjGame);
  Stage Produce(TokenGame& pobjGame);
  Stage Withdraw(TokenGame& pobjGame);

  void TakeWithoutCases();
  bool ChooseCase();
  bool AskForCase(const Collection<WorkCase>& pcolCandidates);
  void TakeOfCase();
  std::shared_ptr<Token> NextUnused(const Place& pobjPlace) const;
  std::shared_ptr<Token> NextUnusedOfCase(const Place& pobjPlace) const;
  bool Uses(const Token& pobjToken) const;
  bool ChooseOutputs();
  bool Accepts(const Arc& pobjArc) const;
  void EndOutput();

  std::shared_ptr<Transition> mobjTransition;
  std::shared_ptr<WorkCase> mobjCase;
  std::vector<std::shared_ptr<Token>> mcolConsumed;
  std::shared_ptr<Workflow> mobjSubflow;
  std::weak_ptr<SubflowRun> mobjRun;
  Collection<Arc>::Cursor mOutputs;
  std::unique_ptr<std::string> mstrGuard;  // chosen by the user; null when every output gets a token
  TokenGame* mobjGame = nullptr;           // while output is under way
  std::uint32_t mlngNext = 0;              // of the consumed tokens
  Stage mStage = kConsume;
  bool mblnTracking;
  bool mblnIgnoreErrors = false;
  bool mblnOutputDone = false;
};

}  // namespace vantrel

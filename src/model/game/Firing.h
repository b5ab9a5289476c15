// A transition fires.
#pragma once

#include <memory>
#include <string>

#include "model/Transition.h"
#include "model/game/Reservation.h"
#include "model/game/SubflowRun.h"
#include "model/game/TokenGame.h"

namespace vantrel {

/// Chooses a case and tokens, which then count for no other firing, and either starts the embedded workflow or produces output. Output
/// tokens arrive before the chosen ones leave. A firing that produces nothing gives its tokens back.
class Firing final : public GameStep {
 public:
  Firing(std::shared_ptr<Transition> pobjTransition, std::shared_ptr<WorkCase> pobjCase);
  ~Firing() override;
  bool Advance(TokenGame& pobjGame) override;
  /// With case tracking on, ignores errors after the choice of the case, except that of a loop.
  bool Absorb(const Error& pobjError) override;

  const Transition* Refired() const override { return mobjEarlier ? mobjTransition.get() : nullptr; }
  /// The subflow that this firing started has delivered: the transition may fire again while the rest of this firing waits.
  void Delivered();

 private:
  enum Stage : std::uint8_t {
    kChoose,
    kStartSubflow,
    kFireSubflow,
    kReevaluate,
    kPrepareOutput,
    kProduce,
    kWithdraw,
    kDated,
    kGiveBack,
    kEnd
  };

  void DoStage(TokenGame& pobjGame);
  // Each does one stage and names the next.
  Stage Choose();
  Stage StartSubflow(TokenGame& pobjGame);
  Stage FireSubflow(TokenGame& pobjGame);
  Stage Reevaluate(TokenGame& pobjGame);
  Stage PrepareOutput();
  Stage Produce(TokenGame& pobjGame);
  Stage Withdraw(TokenGame& pobjGame);
  Stage GiveBack(TokenGame& pobjGame);

  void TakeWithoutCases();
  bool ChooseCase();
  bool AskForCase(const Collection<WorkCase>& pcolCandidates);
  void TakeOfCase();
  bool ChooseOutputs();
  bool Accepts(const Arc& pobjArc) const;
  void FollowTokens();

  std::shared_ptr<Transition> mobjTransition;
  std::shared_ptr<WorkCase> mobjCase;
  Reservation mChosen;
  std::shared_ptr<Workflow> mobjSubflow;
  std::weak_ptr<SubflowRun> mobjRun;
  Ref<SubflowRun> mobjOuter;  // the run that the chosen tokens take part in
  Collection<Arc>::Cursor mOutputs;
  std::unique_ptr<std::string> mstrGuard;  // chosen by the user; null when every output gets a token
  Firing* mobjEarlier;                     // the transition's firing before this one, still under way
  std::int32_t mlngDepth = 0;              // firings under way from which the chosen tokens descend, one after the other
  std::int32_t mlngRounds = 0;             // how often the transition itself was one of them
  std::uint32_t mlngNext = 0;              // of the chosen tokens
  Stage mStage = kChoose;
  bool mblnTracking;
  bool mblnIgnoreErrors = false;
  bool mblnOutputDone = false;
  bool mblnCanFireAgain = true;  // when it ends early
  bool mblnDelivered = false;
};

}  // namespace vantrel

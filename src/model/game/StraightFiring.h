// A firing without listeners, in one go.
#pragma once

#include <memory>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// Does in one go what FiringNext, Firing, Arrival and Departure do, when no other code can run in between: nothing near the transition
/// is drawn, has listeners, asks a question, is automatic or is a workflow. So nothing has to be kept alive and no step is interrupted.
/// Every other firing is left to the steps.
class StraightFiring {
 public:
  /// Fires the first waiting transition. False, with nothing changed, when that is not such a firing.
  static bool FireNext(Workflow& pobjWorkflow);

 private:
  StraightFiring(Workflow& pobjWorkflow, Transition& pobjTransition);
  ~StraightFiring();
  StraightFiring(const StraightFiring&) = delete;
  StraightFiring& operator=(const StraightFiring&) = delete;

  bool IsPlain();
  template <class Ask>
  bool IsPlain(const Place& pobjPlace, Ask&& pIsPlainConsumer) const;
  static bool IsPlain(const Transition& pobjTransition);
  bool HasPlainInputs() const;
  bool HasPlainOutputs();
  static bool MarksQuietly(const Transition& pobjConsumer);
  static bool NeedsOnly(const Transition& pobjConsumer, const Place& pobjPlace);
  bool IsHeldUp(Transition& pobjConsumer, const Place& pobjOutput);
  bool Choose();
  bool ChooseCase();
  void Fire();
  void Produce();
  void Put(Place& pobjPlace);
  void Withdraw();
  void Leave(Place& pobjPlace, const Token& pobjToken);
  bool IsEnabledBy(Transition& pobjConsumer, Place& pobjPlace) const;
  bool StaysEnabled(Transition& pobjConsumer, Place& pobjPlace);
  bool CanFireAgain(Place& pobjPlace);
  void Switch(Transition& pobjTransition, bool pblnEnabled);
  void GiveBack();
  // After an Error, or where nothing was produced: what was chosen counts for others again.
  void Settle();
  // Runs one step; with case tracking on, an Error is passed over.
  template <class Step>
  void Attempt(Step&& pStep);

  Workflow& mWorkflow;
  Transition& mTransition;
  std::shared_ptr<WorkCase> mobjCase;
  std::vector<std::shared_ptr<Token>> mcolOrphans;  // consumed and owned here alone; destroyed at the end
  const Transition* mobjHeldUp = nullptr;           // a consumer that the only token produced is known not to enable
  std::size_t mlngGone = 0;                         // of the chosen tokens
  Date mdtmNow = Date::Now();
  bool mblnTracking;
  bool mblnOutputDone = false;
  bool mblnCanFireAgain = false;  // as asked last
  bool mblnWaits = false;         // on the firing stack again
};

}  // namespace vantrel

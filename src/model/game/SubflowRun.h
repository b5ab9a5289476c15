// One firing of a transition whose subflow has not delivered yet.
#pragma once

#include <memory>
#include <vector>

#include "model/Forward.h"
#include "util/Ref.h"

namespace vantrel {

/// Keeps what the firing consumed until the subflow delivers: the tokens lie in their places, but no other firing may use
/// them. Tokens inside the subflow refer to the run that they take part in, so that two runs at the same time each deliver
/// once and for their own tokens. Owned by the transition.
class SubflowRun final : public Referable {
 public:
  /// Marks the tokens as taken.
  SubflowRun(Transition& pobjTransition, const std::vector<std::shared_ptr<Token>>& pcolConsumed, std::shared_ptr<WorkCase> pobjCase);
  /// Frees the tokens.
  ~SubflowRun();
  SubflowRun(const SubflowRun&) = delete;
  SubflowRun& operator=(const SubflowRun&) = delete;

  const Ref<Transition>& Owner() const { return mobjTransition; }
  const std::shared_ptr<WorkCase>& Case() const { return mobjCase; }
  /// The run that the consumed tokens themselves take part in, when the transition's workflow is a subflow, too.
  const Ref<SubflowRun>& Outer() const { return mobjOuter; }

  /// The owner's share in a run; null once it has ended.
  static std::shared_ptr<SubflowRun> Shared(const SubflowRun& pobjRun);
  /// The oldest run of the transition for a case, or null.
  static std::shared_ptr<SubflowRun> OldestOf(const Transition& pobjTransition, const WorkCase* pobjCase);
  /// Takes a token out of the run that has it; a run that has nothing left ends without delivery.
  static void Forget(Transition& pobjTransition, const Token& pobjToken);
  /// Ends the run and hands out what it consumed, in the order of consumption.
  std::vector<std::shared_ptr<Token>> End();

 private:
  Ref<Transition> mobjTransition;
  std::vector<std::shared_ptr<Token>> mcolConsumed;
  std::shared_ptr<WorkCase> mobjCase;
  Ref<SubflowRun> mobjOuter;
};

/// The run that a firing takes part in: the first that one of its tokens knows, be it over or not.
Ref<SubflowRun> RunOf(const std::vector<std::shared_ptr<Token>>& pcolTokens);

}  // namespace vantrel

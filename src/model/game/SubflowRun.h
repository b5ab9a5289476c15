// One firing of a transition whose subflow has not delivered yet.
#pragma once

#include <list>
#include <memory>
#include <vector>

#include "model/Forward.h"
#include "model/game/Reservation.h"
#include "util/Ref.h"

namespace vantrel {

class Firing;

/// Keeps the tokens that the firing chose until the subflow delivers. Tokens inside the subflow refer to their run, so that of two runs at
/// the same time each delivers once and for its own tokens. Owned by the transition.
class SubflowRun final : public Referable {
 public:
  /// A run that begins, the transition's newest.
  static std::shared_ptr<SubflowRun> Start(Transition& pobjTransition, Reservation&& pChosen, Firing& pobjStarter,
                                           std::shared_ptr<WorkCase> pobjCase);
  /// Use Start.
  SubflowRun(Transition& pobjTransition, Reservation&& pChosen, Firing& pobjStarter, std::shared_ptr<WorkCase> pobjCase);
  SubflowRun(const SubflowRun&) = delete;
  SubflowRun& operator=(const SubflowRun&) = delete;

  const Ref<Transition>& Owner() const { return mobjTransition; }
  /// The run that the chosen tokens themselves take part in, when the transition's workflow is a subflow itself.
  const Ref<SubflowRun>& Outer() const { return mobjOuter; }
  const std::vector<std::shared_ptr<Token>>& Tokens() const { return mChosen.Tokens(); }
  /// The firing that started it, while that is still under way.
  Firing* Starter() const { return mobjStarter; }
  void Starter(Firing* pobjStarter) { mobjStarter = pobjStarter; }

  /// The oldest run of the transition for a case, or null.
  static SubflowRun* OldestOf(const Transition& pobjTransition, const WorkCase* pobjCase);
  /// Ends the run and hands out what was chosen.
  Reservation End();

 private:
  Ref<Transition> mobjTransition;
  std::shared_ptr<WorkCase> mobjCase;
  Reservation mChosen;
  Ref<SubflowRun> mobjOuter;
  Firing* mobjStarter;
  std::list<std::shared_ptr<SubflowRun>>::iterator mWhere;
};

/// The run that a firing takes part in: the first run that one of its tokens knows, even if that run is over.
Ref<SubflowRun> RunOf(const std::vector<std::shared_ptr<Token>>& pcolTokens);

}  // namespace vantrel

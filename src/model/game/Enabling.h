// Whether a transition is enabled.
#pragma once

#include <memory>
#include <vector>

#include "model/Transition.h"

namespace vantrel {

/// Asks transitions whether the tokens that they need are there. When only chosen tokens stand in the way, the transition
/// remembers the question, and it is asked again when such tokens stay after all.
class Enabling {
 public:
  /// A token of the case has arrived: true when every input place holds a free token that serves it. Marks the tokens of the
  /// case as enabled.
  static bool Arrived(Transition& pobjTransition, const std::shared_ptr<WorkCase>& pobjCase, bool pblnTracking);
  /// A token has left: true when every input place holds a free token; with case tracking, a marked one.
  static bool Left(Transition& pobjTransition, bool pblnTracking);

  /// The questions that wait to be asked again.
  using Question = Transition::HeldUp;
  static const std::vector<Question>& HeldUp(const Transition& pobjTransition) { return pobjTransition.mcolHeldUp; }
  /// Asks a question once more that the transition remembers; false when it no longer does.
  static bool AskAgain(Transition& pobjTransition, const Question& pQuestion, bool pblnTracking);

  /// Acts on the answers: does everything that setting Transition::Enabled does, except firing. True when the transition has to fire now.
  static bool Switch(Transition& pobjTransition, bool pblnEnabled) { return pobjTransition.SwitchEnabled(pblnEnabled); }
  /// After a firing that took nothing: puts the transition on the firing stack again when it can still fire, and disables it
  /// when others have its tokens.
  static void Settle(Transition& pobjTransition);
  /// Does everything that follows when a token is given back, except firing: for the end of a firing that failed.
  static void SettleAround(const Token& pobjToken);

 private:
  template <class Passes>
  static bool Ask(Transition& pobjTransition, const Question& pQuestion, Passes&& pPasses);
  static void Remember(Transition& pobjTransition, const Question& pQuestion, bool pblnHeldUp);
};

}  // namespace vantrel

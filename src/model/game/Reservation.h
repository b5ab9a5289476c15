// The tokens that a firing has chosen.
#pragma once

#include <memory>
#include <vector>

#include "model/Forward.h"

namespace vantrel {

/// Holds tokens from their choice until they leave their places or are given back; its destructor gives back the rest. A firing makes it.
/// When the firing starts a subflow, it passes to the run, and at last to the delivery.
class Reservation {
 public:
  explicit Reservation(Transition& pobjTransition);
  Reservation(Reservation&& pobjOther) noexcept;
  Reservation& operator=(Reservation&&) = delete;
  ~Reservation();

  void Take(Place& pobjPlace, std::shared_ptr<Token> pobjToken);
  /// In order of choice. Null for what has left: with the firing, or taken away by hand.
  const std::vector<std::shared_ptr<Token>>& Tokens() const { return mcolTokens; }
  /// Hands out a token that leaves now.
  std::shared_ptr<Token> Leave(std::size_t plngToken) { return std::move(mcolTokens[plngToken]); }
  /// Lets the tokens count for others again. They stay in Tokens.
  void GiveBack();
  /// A token that firings of the transition may hold was removed by hand.
  static void Forget(const Transition& pobjTransition, const Token& pobjToken);

 private:
  void Link();
  void Unlink();

  Transition& mobjTransition;  // outlives its reservations, a linked list, newest first
  Reservation* mobjNewer = nullptr;
  Reservation* mobjOlder = nullptr;
  std::vector<std::shared_ptr<Token>> mcolTokens;
  bool mblnGivenBack = false;
};

}  // namespace vantrel

// Which tokens count for which firing.
#pragma once

#include <memory>

#include "model/Place.h"

namespace vantrel {

/// Questions of the token game about places and their tokens. A token that a firing has taken for its subflow counts for
/// no other firing. With case tracking on, "of a case" means the same WorkCase object; tokens without a case are of no
/// case, which is a case like any other here.
class TokenRules {
 public:
  /// The case tracking that counts: the shown workflow's; the object's own workflow's while none is shown.
  static bool CaseTracking(const Node& pobjNode);

  static bool IsFree(const Token& pobjToken) { return !pobjToken.mblnTaken; }
  /// The first free token of the place, or null.
  static Token* First(const Place& pobjPlace) {
    const auto& tokens = pobjPlace.Tokens();
    if (tokens.IsEmpty()) return nullptr;
    Token* const first = tokens.First().get();
    return IsFree(*first) ? first : FirstBehind(pobjPlace);
  }
  /// The first free token of the case, or null.
  static Token* FirstOf(const Place& pobjPlace, const WorkCase* pobjCase);
  /// A free token that serves a newly arrived token's case: any without case tracking, else one of the case or of none.
  static bool Serves(const Place& pobjPlace, const WorkCase* pobjCase, bool pblnTracking) {
    return pblnTracking ? ServesCase(pobjPlace, pobjCase) : First(pobjPlace) != nullptr;
  }
  /// A free token that is marked as case-enabled.
  static bool HoldsEnabled(const Place& pobjPlace) {
    const auto& tokens = pobjPlace.Tokens();
    if (tokens.IsEmpty()) return false;
    const Token& first = *tokens.First();
    return (first.mblnCaseEnabled && IsFree(first)) || HoldsEnabledBehind(pobjPlace);
  }
  /// Marks every token of the case that lies in the place as case-enabled, and with it the place.
  static void MarkEnabled(Place& pobjPlace, const WorkCase* pobjCase);

 private:
  static Token* FirstBehind(const Place& pobjPlace);
  static bool HoldsEnabledBehind(const Place& pobjPlace);
  static bool ServesCase(const Place& pobjPlace, const WorkCase* pobjCase);
};

}  // namespace vantrel

// Which tokens count for which firing.
#pragma once

#include <memory>

#include "model/Place.h"
#include "model/game/TokenIndex.h"

namespace vantrel {

/// The token game's questions about places and their tokens, and its only way to change them. A token that a firing has chosen is taken:
/// until it leaves or is given back it counts for no other firing. The others are free. With case tracking on, "of a case" means the
/// same WorkCase object; tokens without a case form a case here.
class TokenRules {
 public:
  /// Whose tokens a question is about.
  enum Which : std::uint8_t { kFree, kAll };

  /// The case tracking that counts: the shown workflow's; the object's own workflow's while none is shown.
  static bool CaseTracking(const Node& pobjNode);

  static bool IsFree(const Token& pobjToken) { return !pobjToken.mblnTaken; }
  static std::int32_t FreeCount(const Place& pobjPlace) {
    Refresh(pobjPlace);
    return pobjPlace.Tokens().Count() - pobjPlace.mlngTaken;
  }
  static bool HasTaken(const Place& pobjPlace) { return pobjPlace.mlngTaken > 0; }
  /// A token at all.
  static bool Holds(const Place& pobjPlace, Which pWhich = kFree) {
    return pWhich == kAll ? !pobjPlace.Tokens().IsEmpty() : FreeCount(pobjPlace) > 0;
  }
  /// A token of the case.
  static bool HoldsOf(const Place& pobjPlace, const WorkCase* pobjCase, Which pWhich = kFree);
  /// A token that serves a newly arrived token's case: any without case tracking, else one of the case or of none.
  static bool Serves(const Place& pobjPlace, const WorkCase* pobjCase, bool pblnTracking, Which pWhich = kFree) {
    if (!pblnTracking) return Holds(pobjPlace, pWhich);
    return HoldsOf(pobjPlace, pobjCase, pWhich) || (pobjCase && HoldsOf(pobjPlace, nullptr, pWhich));
  }
  /// A token that is marked as case-enabled.
  static bool HoldsMarked(const Place& pobjPlace, Which pWhich = kFree);

  /// The free token that the place's selection type names, or null.
  static Token* Next(const Place& pobjPlace);
  /// The first free token of the case, or null.
  static Token* NextOf(const Place& pobjPlace, const WorkCase* pobjCase);
  /// A share in a token of the place, or null for null.
  static std::shared_ptr<Token> Shared(const Place& pobjPlace, const Token* pobjToken) {
    return pobjToken ? pobjPlace.Tokens().Find(pobjToken->Key) : nullptr;
  }
  /// Shows all free tokens to `pSee`, in order of arrival, until it answers false.
  template <class See>
  static void VisitFree(const Place& pobjPlace, See&& pSee) {
    if (const auto* index = IndexOf(pobjPlace)) {
      for (const auto& [arrival, token] : index->Free()) {
        if (!pSee(*token)) return;
      }
      return;
    }
    for (Collection<Token>::Cursor tokens(pobjPlace.Tokens()); Token* token = tokens.Next();) {
      if (IsFree(*token) && !pSee(*token)) return;
    }
  }

  /// Marks every token of the case in the place as case-enabled, and the place as well. True when the chart showed it, which may have run
  /// listeners.
  static bool MarkEnabled(Place& pobjPlace, const WorkCase* pobjCase);

  static void Add(Place& pobjPlace, const std::shared_ptr<Token>& pobjToken);
  /// Takes a token out of the place; a token without a key means the first. Error 5 when it is not there.
  static std::shared_ptr<Token> Remove(Place& pobjPlace, const Token* pobjToken);
  static bool LiesIn(const Place& pobjPlace, const Token& pobjToken) { return pobjPlace.Tokens().RankOf(pobjToken.Key, &pobjToken) >= 0; }
  static void Take(Place& pobjPlace, Token& pobjToken);
  static void GiveBack(Token& pobjToken);
  /// Forgets what is known of the place's tokens, as they were changed by hand.
  static void Forget(const Place& pobjPlace);

 private:
  static void Refresh(const Place& pobjPlace) {
    if (pobjPlace.mlngKnownChanges != pobjPlace.Tokens().Changes()) Recount(pobjPlace);
  }
  static void Recount(const Place& pobjPlace);
  static void ForgetOtherPlace(const Place& pobjPlace, const Token& pobjToken);
  static TokenIndex* IndexOf(const Place& pobjPlace);
  static bool Counts(const Token& pobjToken, Which pWhich) { return pWhich == kAll || IsFree(pobjToken); }
};

}  // namespace vantrel

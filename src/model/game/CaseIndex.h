// The tokens of one crowded place by their cases.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

#include "model/Forward.h"

namespace vantrel {

/// Answers "a token of this case?" without a walk over all tokens of the place: a hundred thousand cases may wait in one.
/// Made when a place with many tokens is asked for the first time; kept up by arrivals and departures; made anew when
/// somebody changed the tokens, their cases or their marks by hand.
class CaseIndex {
 public:
  explicit CaseIndex(const Place& pobjPlace);

  /// The place's index, up to date; null for a place with so few tokens that a walk is as good.
  static CaseIndex* Of(const Place& pobjPlace);

  /// The tokens of a case in order of arrival, or null for none. No case is a case here, too.
  const Collection<Token>* TokensOf(const WorkCase* pobjCase) const;
  /// The tokens that are marked as case-enabled, in the order in which they were marked.
  const Collection<Token>& Marked() const { return mcolMarked; }
  void MarkAll(const WorkCase* pobjCase);

  /// The token has just come or gone; anything else makes the index stale.
  void Added(const Place& pobjPlace, const std::shared_ptr<Token>& pobjToken);
  void Removed(const Place& pobjPlace, const Token& pobjToken);

 private:
  struct Group {
    Collection<Token> All, Unmarked;
  };

  bool IsFresh(const Place& pobjPlace) const;
  void Insert(const std::shared_ptr<Token>& pobjToken);

  std::unordered_map<const WorkCase*, Group> mcolGroups;
  Collection<Token> mcolMarked;
  std::uint64_t mlngTokenChanges;
  std::uint64_t mlngCaseChanges;
};

}  // namespace vantrel

// The tokens of one crowded place by their cases.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <unordered_map>

#include "model/Forward.h"

namespace vantrel {

/// Answers "a free token?", "of this case?", "a marked one?" without a walk over all tokens of the place, where a hundred thousand may
/// wait, most of them chosen already. Gives the same answers as such a walk. TokenRules makes it, keeps it up to date, and deletes it
/// when tokens are changed by hand.
class TokenIndex {
 public:
  using ByArrival = std::map<std::uint32_t, Token*>;

  explicit TokenIndex(const Collection<Token>& pcolTokens);

  /// The tokens that no firing has chosen, in order of arrival.
  const ByArrival& Free() const { return mcolFree; }
  /// Those of one case, or null when there are none. Tokens without a case count as a case.
  const ByArrival* FreeOf(const WorkCase* pobjCase) const;
  bool HasAnyOf(const WorkCase* pobjCase) const { return mcolGroups.contains(pobjCase); }
  bool HasMarked() const { return mlngMarked > 0; }
  bool HasFreeMarked() const { return mlngFreeMarked > 0; }
  void MarkAll(const WorkCase* pobjCase);

  /// Too old to number one more arrival.
  bool IsWornOut() const { return mlngArrivals == UINT32_MAX; }
  void Add(Token& pobjToken);
  void Remove(const Token& pobjToken);
  /// A firing has chosen the token, or gives it back.
  void Take(const Token& pobjToken);
  void GiveBack(Token& pobjToken);

 private:
  struct Group {
    ByArrival Free, Unmarked;
    std::int32_t Count = 0;
  };

  ByArrival mcolFree;
  std::unordered_map<const WorkCase*, Group> mcolGroups;
  std::int32_t mlngMarked = 0, mlngFreeMarked = 0;
  std::uint32_t mlngArrivals = 0;
};

}  // namespace vantrel

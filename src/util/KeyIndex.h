// An index of the keys of a large or unordered collection.
#pragma once

#include <cstdint>
#include <optional>
#include <queue>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "util/ItemKey.h"

namespace vantrel {

/// Finds the ordinal of a key: one hash table for numbers (open addressing, eight bytes an entry), one for texts. Also knows the largest
/// number after the class word when keys have been removed.
class KeyIndex {
 public:
  using Ordinal = std::uint64_t;

  explicit KeyIndex(std::string_view pstrWord) : mWord(pstrWord) {}

  void Add(const ItemKey& pKey, Ordinal pOrdinal);
  void Remove(const ItemKey& pKey);
  /// `pHead` is the collection's first ordinal; no ordinal is 2^32 or more above it.
  std::optional<Ordinal> Find(const ItemKey& pKey, Ordinal pHead) const;
  /// The largest number after the class word in the keys that are in; 0 for none.
  std::int32_t LargestNumber();

 private:
  struct Entry {
    std::int32_t Number = kFree;
    std::uint32_t OrdinalLow = 0;
  };
  static constexpr std::int32_t kFree = -1;
  static constexpr std::int32_t kRemoved = -2;

  std::size_t StartOf(std::int32_t plngNumber) const;
  const Entry* FindNumber(std::int32_t plngNumber) const;
  void Resize(std::size_t plngEntries);
  std::int32_t LargestInTexts();
  std::int32_t LargestInNumbers();

  std::string_view mWord;  // a literal
  std::vector<Entry> mEntries;
  std::size_t mUsed = 0;  // entries that hold a number or held one
  std::size_t mLive = 0;
  std::unordered_map<std::string_view, Ordinal> mTexts;  // views into the keys, whose text never moves
  std::optional<std::int32_t> mLargestText;
  bool mKeepsNumbers = false;
  std::priority_queue<std::int32_t> mNumbers;  // every number that is in, and some that were
};

}  // namespace vantrel

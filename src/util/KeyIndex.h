// From the keys of a large or unordered collection to the places of its items.
#pragma once

#include <cstdint>
#include <optional>
#include <queue>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "util/ItemKey.h"

namespace vantrel {

/// A hash over numbers (open addressing, eight bytes an entry) and one over texts. Remembers what it takes to tell the
/// largest number behind the class word, also after removals.
class KeyIndex {
 public:
  using Place = std::uint64_t;

  explicit KeyIndex(std::string_view pstrWord) : mWord(pstrWord) {}

  void Add(const ItemKey& pKey, Place pPlace);
  void Remove(const ItemKey& pKey);
  /// `pHead` is the collection's first place; all places lie less than 2^32 behind it.
  std::optional<Place> Find(const ItemKey& pKey, Place pHead) const;
  /// The largest number behind the class word over the keys that are in; 0 for none.
  std::int32_t LargestNumber();

 private:
  struct Entry {
    std::int32_t Number = kFree;
    std::uint32_t PlaceLow = 0;
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
  std::unordered_map<std::string_view, Place> mTexts;  // views into the keys, whose text never moves
  std::optional<std::int32_t> mLargestText;
  bool mKeepsNumbers = false;
  std::priority_queue<std::int32_t> mNumbers;  // every number that is in, and some that were
};

}  // namespace vantrel

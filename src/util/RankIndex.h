// Positions of items among holes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantrel {

/// Counts the items in blocks of 64 ordinals and sums the counts in a Fenwick tree, so that the block of the n-th item is
/// found, and a count changed, in logarithmic time.
class RankIndex {
 public:
  using Ordinal = std::uint64_t;
  static constexpr Ordinal kBlock = 64;

  /// Covers at least `plngSpan` ordinals from the block of `pHead` on, and holds no item yet.
  RankIndex(Ordinal pHead, Ordinal plngSpan);

  bool Covers(Ordinal pOrdinal) const { return pOrdinal - mFirst < kBlock * mTree.size(); }
  /// Counts an item in or out.
  void Add(Ordinal pOrdinal) { Change(pOrdinal, 1); }
  void Remove(Ordinal pOrdinal) { Change(pOrdinal, ~std::uint32_t{0}); }

  struct Block {
    Ordinal First;
    std::uint32_t Before;  ///< items in earlier blocks
  };
  /// The block that holds the item at a position from 1 to the number of items.
  Block Find(std::uint32_t plngPosition) const;

 private:
  void Change(Ordinal pOrdinal, std::uint32_t plngBy);

  Ordinal mFirst;
  std::vector<std::uint32_t> mTree;  // entry i - 1 sums the lowest set bit of i blocks that end with block i
};

}  // namespace vantrel

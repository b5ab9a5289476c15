#include "util/RankIndex.h"

#include <bit>

namespace vantrel {

RankIndex::RankIndex(Ordinal pHead, Ordinal plngSpan)
    : mFirst(pHead / kBlock * kBlock), mTree(static_cast<std::size_t>(plngSpan / kBlock + 2)) {}

void RankIndex::Change(Ordinal pOrdinal, std::uint32_t plngBy) {
  for (std::size_t i = static_cast<std::size_t>((pOrdinal - mFirst) / kBlock) + 1; i <= mTree.size(); i += i & (~i + 1)) {
    mTree[i - 1] += plngBy;
  }
}

RankIndex::Block RankIndex::Find(std::uint32_t plngPosition) const {
  std::size_t before = 0;  // blocks known to end before the item
  std::uint32_t items = 0;
  for (std::size_t step = std::bit_floor(mTree.size()); step != 0; step /= 2) {
    const std::size_t next = before + step;
    if (next > mTree.size() || items + mTree[next - 1] >= plngPosition) continue;
    items += mTree[next - 1];
    before = next;
  }
  return {mFirst + before * kBlock, items};
}

}  // namespace vantrel

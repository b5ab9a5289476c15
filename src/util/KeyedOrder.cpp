#include "util/KeyedOrder.h"

#include "util/KeyIndex.h"
#include "util/RankIndex.h"

namespace vantrel {

KeyedOrder::KeyedOrder(std::string_view pstrWord) : mWordSize(static_cast<std::uint8_t>(pstrWord.size())), mWord(pstrWord.data()) {}

KeyedOrder::~KeyedOrder() = default;

std::optional<KeyedOrder::Ordinal> KeyedOrder::Scan(const ItemKey& pKey) const {
  for (Ordinal ordinal = mHead; ordinal < mTail; ++ordinal) {
    if (KeyAt(ordinal) == pKey) return ordinal;
  }
  return std::nullopt;
}

std::optional<KeyedOrder::Ordinal> KeyedOrder::Search(const ItemKey& pKey) const {
  if (!mIndex && mTail - mHead <= kScanLimit) return Scan(pKey);
  if (mAscending && pKey.IsNumber() && pKey.Number() > KeyAt(Last()).Number()) return std::nullopt;
  return Index().Find(pKey, mHead);
}

std::int32_t KeyedOrder::LargestOfIndex() const { return Index().LargestNumber(); }

KeyedOrder::Ordinal KeyedOrder::OrdinalAmongHoles(std::uint32_t plngPosition) const {
  if (plngPosition == 1) return mHead;
  if (plngPosition == mCount) return Last();
  if (!mRanks) {
    mRanks = std::make_unique<RankIndex>(mHead, Ordinal{mCapacity} * 2);
    for (Ordinal ordinal = mHead; ordinal < mTail; ++ordinal) {
      if (Holds(ordinal)) mRanks->Add(ordinal);
    }
  }
  const auto [first, before] = mRanks->Find(plngPosition);
  Ordinal ordinal = first;
  for (std::uint32_t seen = before + Holds(ordinal); seen < plngPosition;) seen += Holds(++ordinal);
  return ordinal;
}

KeyIndex& KeyedOrder::Index() const {
  if (!mIndex) {
    mIndex = std::make_unique<KeyIndex>(Word());
    for (Ordinal ordinal = mHead; ordinal < mTail; ++ordinal) mIndex->Add(KeyAt(ordinal), ordinal);
  }
  return *mIndex;
}

void KeyedOrder::DropIndexes() {
  mIndex.reset();
  mRanks.reset();
}

void KeyedOrder::NoteGap(const ItemKey& pKey) {
  mDense = false;
  mHadUnkeyed = mHadUnkeyed || pKey.IsUnkeyed();
  mAscending = mAscending && pKey.IsNumber() && pKey.Number() > KeyAt(Last()).Number();
}

void KeyedOrder::AddToIndexes(const ItemKey& pKey) {
  if (mIndex) mIndex->Add(pKey, mTail);
  if (mRanks && !mRanks->Covers(mTail)) mRanks.reset();
  if (mRanks) mRanks->Add(mTail);
}

void KeyedOrder::RemoveFromIndexes(Ordinal pOrdinal) {
  if (mIndex) mIndex->Remove(KeyAt(pOrdinal));
  if (mRanks) mRanks->Remove(pOrdinal);
}

}  // namespace vantrel

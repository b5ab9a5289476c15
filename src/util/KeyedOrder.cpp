#include "util/KeyedOrder.h"

#include "util/KeyIndex.h"

namespace vantrel {

KeyedOrder::KeyedOrder(std::string_view pstrWord) : mWordSize(static_cast<std::uint16_t>(pstrWord.size())), mWord(pstrWord.data()) {}

KeyedOrder::~KeyedOrder() = default;

std::optional<KeyedOrder::Place> KeyedOrder::Scan(const ItemKey& pKey) const {
  for (Place place = mHead; place < mTail; ++place) {
    if (KeyAt(place) == pKey) return place;
  }
  return std::nullopt;
}

std::optional<KeyedOrder::Place> KeyedOrder::Search(const ItemKey& pKey) const {
  if (!mIndex && mTail - mHead <= kScanLimit) return Scan(pKey);
  if (mAscending && pKey.IsNumber() && pKey.Number() > KeyAt(Last()).Number()) return std::nullopt;
  return Index().Find(pKey, mHead);
}

std::int32_t KeyedOrder::LargestNumber() const {
  if (mCount == 0) return 0;
  if (mAscending) return KeyAt(Last()).Number();
  return Index().LargestNumber();
}

KeyIndex& KeyedOrder::Index() const {
  if (!mIndex) {
    mIndex = std::make_unique<KeyIndex>(Word());
    for (Place place = mHead; place < mTail; ++place) mIndex->Add(KeyAt(place), place);
  }
  return *mIndex;
}

void KeyedOrder::DropIndex() { mIndex.reset(); }

void KeyedOrder::NoteOrder(const ItemKey& pKey) {
  if (mCount == 0) {
    mDense = mAscending = true;
    DropIndex();
  }
  if (!pKey.IsNumber()) {
    mDense = mAscending = false;
  } else if (mCount != 0) {
    if (mDense) mDense = static_cast<std::uint64_t>(pKey.Number() - KeyAt(mHead).Number()) == mTail - mHead;
    if (mAscending) mAscending = pKey.Number() > KeyAt(Last()).Number();
  }
}

KeyedOrder::Place KeyedOrder::Append(ItemKey pKey) {
  NoteOrder(pKey);
  const Place place = mTail;
  if (mIndex) mIndex->Add(pKey, place);
  mKeys[Slot(place)] = std::move(pKey);
  ++mTail;
  ++mCount;
  ++mChanges;
  return place;
}

void KeyedOrder::Remove(Place pPlace) {
  ItemKey& key = mKeys[Slot(pPlace)];
  if (mIndex) mIndex->Remove(key);
  ItemKey hole;
  key = std::move(hole);
  --mCount;
  ++mChanges;
  Trim();
}

void KeyedOrder::Trim() {
  if (mCount == 0) {
    mHead = mTail;
    DropIndex();
    return;
  }
  while (KeyAt(mHead).IsHole()) ++mHead;
  if (IsWalked()) return;  // an addition must not take a place that a walker has passed
  while (KeyAt(mTail - 1).IsHole()) --mTail;
}

}  // namespace vantrel

// The order and the keys of a collection, without its items: the part of Collection<T> that is the same for all T.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "util/ItemKey.h"

namespace vantrel {

class KeyIndex;
class RankIndex;

/// Numbers the items in the order of their addition. An item keeps its ordinal until the ring of keys is rebuilt without holes, which
/// happens only when the ring is full and there is no walk. The ring's size is a power of two, so a long-lived queue takes only the
/// memory of its items. Finding a key takes the same time at every size. An index of the keys is made only for a key that neither
/// counting nor a short scan finds. For one thread.
class KeyedOrder {
 public:
  using Ordinal = std::uint64_t;

  /// `pstrWord` is the class word that keys of the usual form begin with; a literal, or empty.
  explicit KeyedOrder(std::string_view pstrWord);
  ~KeyedOrder();
  KeyedOrder(const KeyedOrder&) = delete;
  KeyedOrder& operator=(const KeyedOrder&) = delete;

  std::string_view Word() const { return {mWord, mWordSize}; }
  std::uint32_t Count() const { return mCount; }
  std::uint64_t Changes() const { return mChanges; }  ///< additions and removals so far
  Ordinal Head() const { return mHead; }              ///< the first item's ordinal; there must be one
  Ordinal Tail() const { return mTail; }              ///< the ordinal that the next item gets
  std::uint32_t Capacity() const { return mCapacity; }
  std::uint32_t Slot(Ordinal pOrdinal) const { return static_cast<std::uint32_t>(pOrdinal) & (mCapacity - 1); }
  bool Holds(Ordinal pOrdinal) const { return pOrdinal >= mHead && pOrdinal < mTail && !mKeys[Slot(pOrdinal)].IsHole(); }
  bool HasHoles() const { return mCount != mTail - mHead; }
  bool IsFull() const { return mTail - mHead == mCapacity; }
  const ItemKey& KeyAt(Ordinal pOrdinal) const { return mKeys[Slot(pOrdinal)]; }
  /// The last item's ordinal; there must be one.
  Ordinal Last() const {
    Ordinal ordinal = mTail - 1;
    while (KeyAt(ordinal).IsHole()) --ordinal;  // holes at the end stay only during a walk
    return ordinal;
  }
  /// The ordinal of the item at a position from 1 to Count.
  Ordinal OrdinalOf(std::uint32_t plngPosition) const { return HasHoles() ? OrdinalAmongHoles(plngPosition) : mHead + (plngPosition - 1); }

  std::optional<Ordinal> Find(const ItemKey& pKey) const {
    if (mCount == 0 || pKey.IsUnkeyed()) return std::nullopt;
    return mDense ? CountTo(pKey) : Search(pKey);
  }
  /// The largest number after the class word; 0 for none.
  std::int32_t LargestNumber() const { return mCount == 0 ? 0 : mAscending ? KeyAt(Last()).Number() : LargestOfIndex(); }

  /// True when any item was ever added without a key.
  bool HadUnkeyed() const { return mHadUnkeyed; }

  /// Adds a key at the end. Needs room and a key that is not taken.
  Ordinal Append(ItemKey&& pKey) {
    if (mCount == 0) {
      Restart(pKey);
    } else if (!(mDense && OrdinalIfDense(pKey) == mTail)) {
      NoteGap(pKey);
    }
    if (mIndex || mRanks) AddToIndexes(pKey);
    mKeys[Slot(mTail)] = std::move(pKey);
    ++mCount;
    ++mChanges;
    return mTail++;
  }
  void Remove(Ordinal pOrdinal) {
    if (mIndex || mRanks) RemoveFromIndexes(pOrdinal);
    mKeys[Slot(pOrdinal)].Clear();
    --mCount;
    ++mChanges;
    if (mCount == 0) {
      Empty();
    } else {
      Trim();
    }
  }

  void StartWalk() const { ++mWalkers; }
  void EndWalk() const { --mWalkers; }
  bool IsWalked() const { return mWalkers != 0; }

  /// Moves all keys into a ring of another size and, unless there is a walk, closes the holes. Calls `pMoved(from, to)` with the old and
  /// the new ordinal of each item, in order; Slot still refers to the old ring then.
  template <class Moved>
  void Rebuild(std::uint32_t plngCapacity, Moved&& pMoved);

 private:
  // Where a key is if it is there; beyond the tail for a text. Unsigned arithmetic wraps round as intended.
  Ordinal OrdinalIfDense(const ItemKey& pKey) const {
    return pKey.IsNumber() ? mDenseOffset + static_cast<Ordinal>(pKey.Number()) : ~Ordinal{0};
  }
  std::optional<Ordinal> CountTo(const ItemKey& pKey) const {
    const Ordinal ordinal = OrdinalIfDense(pKey);
    return Holds(ordinal) ? std::optional(ordinal) : std::nullopt;
  }
  // The first key after none.
  void Restart(const ItemKey& pKey) {
    mDense = mAscending = pKey.IsNumber();
    if (mDense) mDenseOffset = mTail - static_cast<Ordinal>(pKey.Number());
    if (pKey.IsUnkeyed()) mHadUnkeyed = true;
  }
  void Empty() {
    mHead = mTail;
    if (mIndex || mRanks) DropIndexes();
  }
  void Trim() {
    while (KeyAt(mHead).IsHole()) ++mHead;
    if (IsWalked()) return;  // an addition must not take the ordinal of an item that a walker has passed
    while (KeyAt(mTail - 1).IsHole()) --mTail;
  }
  std::optional<Ordinal> Search(const ItemKey& pKey) const;
  std::optional<Ordinal> Scan(const ItemKey& pKey) const;
  std::int32_t LargestOfIndex() const;
  Ordinal OrdinalAmongHoles(std::uint32_t plngPosition) const;
  KeyIndex& Index() const;
  void AddToIndexes(const ItemKey& pKey);
  void RemoveFromIndexes(Ordinal pOrdinal);
  void DropIndexes();
  void NoteGap(const ItemKey& pKey);

  static constexpr std::uint32_t kScanLimit = 16;

  Ordinal mHead = 0;
  Ordinal mTail = 0;
  std::uint64_t mChanges = 0;
  std::uint32_t mCapacity = 0;
  std::uint32_t mCount = 0;
  mutable std::uint32_t mWalkers = 0;
  std::uint8_t mWordSize;
  bool mHadUnkeyed = false;
  bool mDense = true;      // every key is a number, and ordinal minus number is mDenseOffset
  bool mAscending = true;  // every key is a number, larger than all before it
  Ordinal mDenseOffset = 0;
  const char* mWord;
  std::unique_ptr<ItemKey[]> mKeys;
  mutable std::unique_ptr<KeyIndex> mIndex;
  mutable std::unique_ptr<RankIndex> mRanks;  // made when a position among holes is asked for
};

template <class Moved>
void KeyedOrder::Rebuild(std::uint32_t plngCapacity, Moved&& pMoved) {
  auto keys = std::make_unique<ItemKey[]>(plngCapacity);
  const bool keepsOrdinals = IsWalked() || !HasHoles();
  if (!keepsOrdinals) {
    DropIndexes();
    mDense = false;
  }
  Ordinal to = mHead;
  for (Ordinal from = mHead; from < mTail; ++from) {
    ItemKey& key = mKeys[Slot(from)];
    if (keepsOrdinals) to = from;
    if (key.IsHole()) continue;
    keys[static_cast<std::uint32_t>(to) & (plngCapacity - 1)] = std::move(key);
    pMoved(from, to);
    ++to;
  }
  if (!keepsOrdinals) mTail = to;
  mCapacity = plngCapacity;
  mKeys = std::move(keys);
}

}  // namespace vantrel

// The order and the keys of a collection, apart from its items: what Collection<T> is made of, written once for all T.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "util/ItemKey.h"

namespace vantrel {

class KeyIndex;

/// Gives every item a place: a number that grows with each addition and stays the item's own until holes are closed
/// (never while somebody walks). Places lie in a ring whose size is a power of two, so a queue of any age takes the room
/// of what it holds. Finding a key costs the same whatever the size; an index is made only when a key is asked for that
/// neither a short scan nor simple counting finds.
class KeyedOrder {
 public:
  using Place = std::uint64_t;

  /// `pstrWord` is the class word that keys of the usual form begin with; a literal, or empty.
  explicit KeyedOrder(std::string_view pstrWord);
  ~KeyedOrder();
  KeyedOrder(const KeyedOrder&) = delete;
  KeyedOrder& operator=(const KeyedOrder&) = delete;

  std::string_view Word() const { return {mWord, mWordSize}; }
  std::uint32_t Count() const { return mCount; }
  std::uint64_t Changes() const { return mChanges; }  ///< additions and removals so far
  Place Head() const { return mHead; }                ///< the first item's place, when there is one
  Place Tail() const { return mTail; }                ///< behind the last place
  std::uint32_t Capacity() const { return mCapacity; }
  std::uint32_t Slot(Place pPlace) const { return static_cast<std::uint32_t>(pPlace) & (mCapacity - 1); }
  bool Holds(Place pPlace) const { return pPlace >= mHead && pPlace < mTail && !mKeys[Slot(pPlace)].IsHole(); }
  bool HasHoles() const { return mCount != mTail - mHead; }
  bool IsFull() const { return mTail - mHead == mCapacity; }
  const ItemKey& KeyAt(Place pPlace) const { return mKeys[Slot(pPlace)]; }
  /// The last item's place; there must be one.
  Place Last() const {
    Place place = mTail - 1;
    while (KeyAt(place).IsHole()) --place;  // holes at the end stay only while somebody walks
    return place;
  }

  std::optional<Place> Find(const ItemKey& pKey) const {
    if (mCount == 0 || pKey.IsUnkeyed()) return std::nullopt;
    return mDense ? CountTo(pKey) : Search(pKey);
  }
  std::int32_t LargestNumber() const;  ///< behind the class word; 0 for none

  /// Takes a key at the end. Needs room and a key that is not taken.
  Place Append(ItemKey pKey);
  void Remove(Place pPlace);

  void StartWalk() const { ++mWalkers; }
  void EndWalk() const { --mWalkers; }
  bool IsWalked() const { return mWalkers != 0; }

  /// Moves all keys into a ring of another size and, unless somebody walks, closes the holes. `pMoved(from, to)` hears the
  /// old and the new place of each item, in order, while Slot still speaks of the old ring.
  template <class Moved>
  void Rebuild(std::uint32_t plngCapacity, Moved&& pMoved);

 private:
  std::optional<Place> CountTo(const ItemKey& pKey) const {
    if (!pKey.IsNumber()) return std::nullopt;
    const Place place = mHead + static_cast<Place>(std::int64_t{pKey.Number()} - KeyAt(mHead).Number());
    return Holds(place) ? std::optional(place) : std::nullopt;
  }
  std::optional<Place> Search(const ItemKey& pKey) const;
  std::optional<Place> Scan(const ItemKey& pKey) const;
  KeyIndex& Index() const;
  void DropIndex();
  void NoteOrder(const ItemKey& pKey);
  void Trim();

  static constexpr std::uint32_t kScanLimit = 16;

  Place mHead = 0;
  Place mTail = 0;
  std::uint64_t mChanges = 0;
  std::uint32_t mCapacity = 0;
  std::uint32_t mCount = 0;
  mutable std::uint32_t mWalkers = 0;
  std::uint16_t mWordSize;
  bool mDense = true;      // every key is a number, and number minus place is the same for all
  bool mAscending = true;  // every key is a number, larger than all before it
  const char* mWord;
  std::unique_ptr<ItemKey[]> mKeys;
  mutable std::unique_ptr<KeyIndex> mIndex;
};

template <class Moved>
void KeyedOrder::Rebuild(std::uint32_t plngCapacity, Moved&& pMoved) {
  auto keys = std::make_unique<ItemKey[]>(plngCapacity);
  const bool keepsPlaces = IsWalked() || !HasHoles();
  if (!keepsPlaces) {
    DropIndex();
    mDense = false;
  }
  Place to = mHead;
  for (Place from = mHead; from < mTail; ++from) {
    ItemKey& key = mKeys[Slot(from)];
    if (keepsPlaces) to = from;
    if (key.IsHole()) continue;
    keys[static_cast<std::uint32_t>(to) & (plngCapacity - 1)] = std::move(key);
    pMoved(from, to);
    ++to;
  }
  if (!keepsPlaces) mTail = to;
  mCapacity = plngCapacity;
  mKeys = std::move(keys);
}

}  // namespace vantrel

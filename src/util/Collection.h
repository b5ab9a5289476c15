// The system's collections: in order of insertion, counted from 1, found by key.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "util/Error.h"
#include "util/KeyedOrder.h"

namespace vantrel {

/// The word that keys of a class begin with ("Place" in "Place1"): its KeyWord, or nothing. A collection finds keys of that
/// form without storing or hashing their text. A class that is only declared where its collections are gets its word by
/// specialising this template beside the declaration.
template <class T>
struct KeyWordOf {
  static constexpr std::string_view Value{};
};

/// Holds shared items in order of insertion; positions count from 1; keys are optional, case-sensitive and unique.
///
/// Adding, finding and removing by key, the first and the last item cost the same whatever the size. A walk (range-for,
/// Cursor) survives the removal of any item and visits what is added at the end meanwhile; the collection itself must
/// outlive it. The key is the one that the item was added under: whoever changes an item's own `Key` field afterwards takes
/// the item out and adds it again.
template <class T>
class Collection {
 public:
  using Pointer = std::shared_ptr<T>;

  Collection() : mOrder(kWord) {}
  Collection(const Collection&) = delete;
  Collection& operator=(const Collection&) = delete;

  std::int32_t Count() const { return static_cast<std::int32_t>(mOrder.Count()); }
  bool IsEmpty() const { return mOrder.Count() == 0; }
  /// Additions and removals so far: tells whether what was learnt of the collection still holds.
  std::uint64_t Changes() const { return mOrder.Changes(); }

  /// Adds at the end. Throws Error 457 when the key is taken, Error 5 for a null item.
  void Add(Pointer pobjItem, std::string_view pstrKey = {}) {
    if (!pobjItem) throw Error(vntErrInvalidCall);
    ItemKey key = ItemKey::Of(kWord, pstrKey);
    if (mOrder.Find(key)) throw Error(vntErrDuplicateKey);
    Append(std::move(pobjItem), std::move(key));
  }
  /// Adds what `pMake` gives unless the key is taken.
  template <class Make>
  void AddIfMissing(std::string_view pstrKey, Make&& pMake) {
    ItemKey key = ItemKey::Of(kWord, pstrKey);
    if (!mOrder.Find(key)) Append(pMake(), std::move(key));
  }
  /// Adds at the end under the class word and a number larger than any behind it, see LargestKeyNumber.
  void AddNumbered(Pointer pobjItem, std::int32_t plngNumber) { Append(std::move(pobjItem), ItemKey::OfNumber(plngNumber)); }

  /// The item at a position from 1 to Count, or under a key. Throws Error 5 when there is none.
  const Pointer& Item(std::int32_t plngIndex) const {
    if (plngIndex < 1 || plngIndex > Count()) throw Error(vntErrInvalidCall);
    return At(PlaceOf(plngIndex));
  }
  const Pointer& Item(std::string_view pstrKey) const { return At(Require(pstrKey)); }
  const Pointer& First() const {
    if (IsEmpty()) throw Error(vntErrInvalidCall);
    return At(mOrder.Head());
  }
  const Pointer& Last() const {
    if (IsEmpty()) throw Error(vntErrInvalidCall);
    return At(mOrder.Last());
  }

  /// The item under a key, or null.
  Pointer Find(std::string_view pstrKey) const {
    const auto place = mOrder.Find(ItemKey::Of(kWord, pstrKey));
    return place ? At(*place) : nullptr;
  }
  bool Contains(std::string_view pstrKey) const { return Find(pstrKey) != nullptr; }
  /// The key of the item at a position; empty when it has none.
  std::string KeyOf(std::int32_t plngIndex) const {
    Item(plngIndex);
    return mOrder.KeyAt(PlaceOf(plngIndex)).ToText(kWord);
  }
  /// A number that orders the items under keys as the collection does; -1 when the key leads to another item or to none.
  std::int64_t RankOf(std::string_view pstrKey, const T* pobjItem) const {
    const auto place = mOrder.Find(ItemKey::Of(kWord, pstrKey));
    return place && At(*place).get() == pobjItem ? static_cast<std::int64_t>(*place) : -1;
  }

  /// Throws Error 5 when there is no such item.
  void Remove(std::string_view pstrKey) { RemoveAt(Require(pstrKey)); }
  void Remove(std::int32_t plngIndex) {
    Item(plngIndex);
    RemoveAt(PlaceOf(plngIndex));
  }
  void RemoveIfThere(std::string_view pstrKey) {
    if (IsEmpty()) return;
    if (const auto place = mOrder.Find(ItemKey::Of(kWord, pstrKey))) RemoveAt(*place);
  }
  /// Removes an item and hands it out. Throws Error 5 when there is none under the key.
  Pointer Take(std::string_view pstrKey) { return TakeAt(Require(pstrKey)); }
  /// Throws Error 5 when there is no item.
  Pointer TakeFirst() {
    if (IsEmpty()) throw Error(vntErrInvalidCall);
    return TakeAt(mOrder.Head());
  }
  void Clear() {
    while (!IsEmpty()) RemoveAt(mOrder.Head());
  }

  /// The class word of the keys, and the largest number behind it (0 for none): what numbering new keys needs.
  std::string_view KeyWord() const { return kWord; }
  std::int32_t LargestKeyNumber() const { return mOrder.LargestNumber(); }

  /// A walk from the first item on.
  class Cursor {
   public:
    explicit Cursor(const Collection& pcolItems) : Cursor(pcolItems, 0) {}
    /// From the first item whose RankOf is not below the given one.
    Cursor(const Collection& pcolItems, std::int64_t plngRank)
        : mItems(&pcolItems), mNext(std::max(pcolItems.mOrder.Head(), static_cast<KeyedOrder::Place>(plngRank))) {
      mItems->mOrder.StartWalk();
    }
    Cursor(const Cursor& pobjOther) : mItems(pobjOther.mItems), mNext(pobjOther.mNext) { mItems->mOrder.StartWalk(); }
    Cursor& operator=(const Cursor&) = delete;
    ~Cursor() { mItems->mOrder.EndWalk(); }

    /// The next item, or null behind the last one. The pointer holds as long as the item is in the collection.
    T* Next() {
      const auto& order = mItems->mOrder;
      if (mNext < order.Head()) mNext = order.Head();
      while (mNext < order.Tail()) {
        const auto place = mNext++;
        if (!order.KeyAt(place).IsHole()) return mItems->At(place).get();
      }
      return nullptr;
    }
    /// The rank of the item that Next gave last.
    std::int64_t Rank() const { return static_cast<std::int64_t>(mNext) - 1; }
    /// The item that Next gave last, shared.
    const Pointer& Shared() const { return mItems->At(mNext - 1); }

   private:
    const Collection* mItems;
    KeyedOrder::Place mNext;
  };

  class Iterator {
   public:
    explicit Iterator(const Collection& pcolItems) : mCursor(pcolItems) { ++*this; }
    const Pointer& operator*() const { return mCurrent; }
    Iterator& operator++() {
      mCurrent = mCursor.Next() ? mCursor.Shared() : nullptr;
      return *this;
    }
    bool operator==(std::nullptr_t) const { return mCurrent == nullptr; }

   private:
    Cursor mCursor;
    Pointer mCurrent;  // shared, so that the body of a loop may remove the item that it looks at
  };
  Iterator begin() const { return Iterator(*this); }
  std::nullptr_t end() const { return nullptr; }

 private:
  static constexpr std::string_view kWord = KeyWordOf<T>::Value;

  const Pointer& At(KeyedOrder::Place pPlace) const { return mItems[mOrder.Slot(pPlace)]; }

  KeyedOrder::Place Require(std::string_view pstrKey) const {
    const auto place = mOrder.Find(ItemKey::Of(kWord, pstrKey));
    if (!place) throw Error(vntErrInvalidCall);
    return *place;
  }

  KeyedOrder::Place PlaceOf(std::int32_t plngIndex) const {
    if (plngIndex == 1) return mOrder.Head();
    if (plngIndex == Count()) return mOrder.Last();
    if (mOrder.HasHoles() && !mOrder.IsWalked()) Rebuild(mOrder.Capacity());
    if (!mOrder.HasHoles()) return mOrder.Head() + static_cast<KeyedOrder::Place>(plngIndex - 1);
    auto place = mOrder.Head();
    for (std::int32_t seen = mOrder.Holds(place); seen < plngIndex;) seen += mOrder.Holds(++place);
    return place;
  }

  void Append(Pointer pobjItem, ItemKey pKey) {
    if (mOrder.IsFull()) Grow();
    const auto place = mOrder.Append(std::move(pKey));
    mItems[mOrder.Slot(place)] = std::move(pobjItem);
  }

  Pointer TakeAt(KeyedOrder::Place pPlace) {
    Pointer item = std::move(mItems[mOrder.Slot(pPlace)]);
    mOrder.Remove(pPlace);
    return item;
  }
  // The item dies behind its removal: its end may look at this collection.
  void RemoveAt(KeyedOrder::Place pPlace) { TakeAt(pPlace); }

  void Grow() {
    const bool mostlyHoles = mOrder.Capacity() >= 4 && mOrder.Count() * 2 <= mOrder.Capacity() && !mOrder.IsWalked();
    Rebuild(mostlyHoles ? mOrder.Capacity() : std::max<std::uint32_t>(4, mOrder.Capacity() * 2));
  }

  // Closing holes changes no item, no order and no key, so a reader may do it.
  void Rebuild(std::uint32_t plngCapacity) const {
    auto items = std::make_unique<Pointer[]>(plngCapacity);
    mOrder.Rebuild(plngCapacity, [&](KeyedOrder::Place pFrom, KeyedOrder::Place pTo) {
      items[static_cast<std::uint32_t>(pTo) & (plngCapacity - 1)] = std::move(mItems[mOrder.Slot(pFrom)]);
    });
    mItems = std::move(items);
  }

  mutable KeyedOrder mOrder;
  mutable std::unique_ptr<Pointer[]> mItems;
};

}  // namespace vantrel

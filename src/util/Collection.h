// The system's collections: in order of insertion, counted from 1, found by key.
#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "util/Error.h"
#include "util/KeyField.h"
#include "util/KeyedOrder.h"

namespace vantrel {

/// The word that keys of a class begin with ("Place" in "Place1"): its KeyWord, or nothing. A collection finds keys of that
/// form without storing or hashing their text. A class that is only declared where its collections are gets its word by
/// specialising this template beside the declaration.
template <class T>
struct KeyWordOf {
  static constexpr std::string_view Value{};
};

/// Holds shared items in order of insertion; positions count from 1; keys are optional, case-sensitive and unique. The key
/// is the one that the item was added under: to change an item's own `Key` field, take the item out first and add it again
/// afterwards.
///
/// Adding, finding and removing by key, the first and the last item cost the same whatever the size; a position among
/// others costs its logarithm.
///
/// Lifetimes: an item lives at least as long as it is in the collection. A `const Pointer&` that a read returns holds until
/// the next addition or removal; reads never move items. Copy the pointer to keep the item longer. A walk (range-for,
/// Cursor) survives additions and the removal of any item, and visits what is added at the end meanwhile; the collection
/// itself must outlive it.
///
/// For one thread: reads keep indexes and count walks, so even two reads at the same time are a race.
///
/// A key is given as a text or as a KeyField<T>.
template <class T>
class Collection {
  template <class Key>
  static constexpr bool kIsKey = std::is_convertible_v<const Key&, std::string_view> || std::is_same_v<Key, KeyField<T>>;

 public:
  using Pointer = std::shared_ptr<T>;

  Collection() : mOrder(kWord) {}
  Collection(const Collection&) = delete;
  Collection& operator=(const Collection&) = delete;

  std::int32_t Count() const { return static_cast<std::int32_t>(mOrder.Count()); }
  bool IsEmpty() const { return mOrder.Count() == 0; }
  /// The number of additions and removals so far, which tells whether facts about the collection still hold.
  std::uint64_t Changes() const { return mOrder.Changes(); }

  /// Adds at the end. Throws Error 457 when the key is taken, Error 5 for a null item.
  template <class Key>
  requires kIsKey<Key>
  void Add(Pointer pobjItem, const Key& pstrKey) {
    if (!pobjItem) throw Error(vntErrInvalidCall);
    AddUnder(std::move(pobjItem), Copy(pstrKey));
  }
  void Add(Pointer pobjItem) { Add(std::move(pobjItem), std::string_view()); }
  /// Adds what `pMake` gives unless the key is taken. Returns the rank of the item under the key, see RankOf.
  template <class Key, class Make>
  std::int64_t AddIfMissing(const Key& pstrKey, Make&& pMake) {
    ItemKey key = Copy(pstrKey);
    const auto ordinal = mOrder.Find(key);
    return static_cast<std::int64_t>(ordinal ? *ordinal : Append(pMake(), std::move(key)));
  }
  /// Adds at the end under the class word and a number larger than LargestKeyNumber.
  void AddNumbered(Pointer pobjItem, std::int32_t plngNumber) { Append(std::move(pobjItem), ItemKey::Of(kWord, plngNumber)); }

  /// The item at a position from 1 to Count, or under a key. Throws Error 5 when there is none.
  const Pointer& Item(std::int32_t plngIndex) const { return At(OrdinalOf(plngIndex)); }
  template <class Key>
  requires kIsKey<Key>
  const Pointer& Item(const Key& pstrKey) const { return At(Require(pstrKey)); }
  /// Throw Error 5 when there is no item.
  const Pointer& First() const {
    RequireAny();
    return At(mOrder.Head());
  }
  const Pointer& Last() const {
    RequireAny();
    return At(mOrder.Last());
  }

  /// True when `pPasses(item)` is true for all items. Asks in order until one fails. Faster than a walk, but the collection must not
  /// change meanwhile.
  template <class Passes>
  bool All(Passes&& pPasses) const {
    return FirstThatFails(std::forward<Passes>(pPasses)) < 0;
  }
  /// The rank of the first item that fails, from one rank on and below another; -1 for none.
  template <class Passes>
  std::int64_t FirstThatFails(Passes&& pPasses, std::int64_t plngFrom = 0, std::int64_t plngBelow = INT64_MAX) const {
    const auto end = std::min(mOrder.Tail(), static_cast<KeyedOrder::Ordinal>(plngBelow));
    for (auto ordinal = std::max(mOrder.Head(), static_cast<KeyedOrder::Ordinal>(plngFrom)); ordinal < end; ++ordinal) {
      T* const item = At(ordinal).get();
      if (item && !pPasses(*item)) return static_cast<std::int64_t>(ordinal);
    }
    return -1;
  }

  /// The item under a key, or null.
  template <class Key>
  Pointer Find(const Key& pstrKey) const {
    const auto ordinal = OrdinalUnder(pstrKey);
    return ordinal ? At(*ordinal) : nullptr;
  }
  template <class Key>
  bool Contains(const Key& pstrKey) const {
    return OrdinalUnder(pstrKey).has_value();
  }
  /// The key of the item at a position; empty when it has none.
  std::string KeyOf(std::int32_t plngIndex) const { return mOrder.KeyAt(OrdinalOf(plngIndex)).ToText(kWord); }
  /// A number that grows with each item's position; -1 when the key leads to another item or to none. Valid until the collection
  /// changes.
  template <class Key>
  std::int64_t RankOf(const Key& pstrKey, const T* pobjItem) const {
    const auto ordinal = OrdinalUnder(pstrKey);
    return ordinal && At(*ordinal).get() == pobjItem ? static_cast<std::int64_t>(*ordinal) : -1;
  }

  /// True when the item lies where RankOf said at any time before.
  bool IsAt(std::int64_t plngRank, const T* pobjItem) const {
    const auto ordinal = static_cast<KeyedOrder::Ordinal>(plngRank);
    return mOrder.Holds(ordinal) && At(ordinal).get() == pobjItem;
  }
  /// Takes out what IsAt has found.
  Pointer TakeAtRank(std::int64_t plngRank) { return TakeAt(static_cast<KeyedOrder::Ordinal>(plngRank)); }

  /// Throws Error 5 when there is no such item.
  template <class Key>
  requires kIsKey<Key>
  void Remove(const Key& pstrKey) { RemoveAt(Require(pstrKey)); }
  void Remove(std::int32_t plngIndex) { RemoveAt(OrdinalOf(plngIndex)); }
  template <class Key>
  void RemoveIfThere(const Key& pstrKey) {
    if (IsEmpty()) return;
    if (const auto ordinal = OrdinalUnder(pstrKey)) RemoveAt(*ordinal);
  }
  /// Removes an item and returns it. Throws Error 5 for an unknown key.
  template <class Key>
  Pointer Take(const Key& pstrKey) {
    return TakeAt(Require(pstrKey));
  }
  /// Throws Error 5 when there is no item.
  Pointer TakeFirst() {
    RequireAny();
    return TakeAt(mOrder.Head());
  }
  void Clear() {
    while (!IsEmpty()) RemoveAt(mOrder.Head());
  }

  /// The class word of the keys, and the largest number after it (0 for none): what numbering new keys needs.
  std::string_view KeyWord() const { return kWord; }
  std::int32_t LargestKeyNumber() const { return mOrder.LargestNumber(); }
  /// True when any item was ever added without a key: then the items' own keys have to be asked, too.
  bool HadUnkeyed() const { return mOrder.HadUnkeyed(); }

  /// A walk from the first item on.
  class Cursor {
   public:
    explicit Cursor(const Collection& pcolItems) : Cursor(pcolItems, 0) {}
    /// From the first item whose RankOf is not below the given one.
    Cursor(const Collection& pcolItems, std::int64_t plngRank)
        : mItems(&pcolItems), mNext(std::max(pcolItems.mOrder.Head(), static_cast<KeyedOrder::Ordinal>(plngRank))) {
      mItems->mOrder.StartWalk();
    }
    Cursor(const Cursor& pobjOther) : mItems(pobjOther.mItems), mNext(pobjOther.mNext) { mItems->mOrder.StartWalk(); }
    Cursor& operator=(const Cursor&) = delete;
    ~Cursor() { mItems->mOrder.EndWalk(); }

    /// The next item, or null after the last one.
    T* Next() {
      const auto& order = mItems->mOrder;
      if (mNext < order.Head()) mNext = order.Head();
      while (mNext < order.Tail()) {
        const auto ordinal = mNext++;
        if (!order.KeyAt(ordinal).IsHole()) return mItems->At(ordinal).get();
      }
      return nullptr;
    }
    /// The RankOf the item that Next gave last.
    std::int64_t Rank() const { return static_cast<std::int64_t>(mNext) - 1; }
    /// The item that Next gave last, shared; null once it is out of the collection.
    const Pointer& Shared() const { return mItems->At(mNext - 1); }

   private:
    const Collection* mItems;
    KeyedOrder::Ordinal mNext;
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

  const Pointer& At(KeyedOrder::Ordinal pOrdinal) const { return mItems[mOrder.Slot(pOrdinal)]; }

  void RequireAny() const {
    if (IsEmpty()) throw Error(vntErrInvalidCall);
  }
  static ItemKey Copy(std::string_view pstrKey) { return ItemKey::Of(kWord, pstrKey); }
  static ItemKey Copy(const KeyField<T>& pstrKey) { return pstrKey.Item().Copy(); }
  std::optional<KeyedOrder::Ordinal> OrdinalUnder(std::string_view pstrKey) const { return mOrder.Find(Copy(pstrKey)); }
  std::optional<KeyedOrder::Ordinal> OrdinalUnder(const KeyField<T>& pstrKey) const { return mOrder.Find(pstrKey.Item()); }
  template <class Key>
  KeyedOrder::Ordinal Require(const Key& pstrKey) const {
    const auto ordinal = OrdinalUnder(pstrKey);
    if (!ordinal) throw Error(vntErrInvalidCall);
    return *ordinal;
  }
  KeyedOrder::Ordinal OrdinalOf(std::int32_t plngIndex) const {
    if (plngIndex < 1 || plngIndex > Count()) throw Error(vntErrInvalidCall);
    return mOrder.OrdinalOf(static_cast<std::uint32_t>(plngIndex));
  }

  void AddUnder(Pointer&& pobjItem, ItemKey&& pKey) {
    if (mOrder.Find(pKey)) throw Error(vntErrDuplicateKey);
    Append(std::move(pobjItem), std::move(pKey));
  }
  KeyedOrder::Ordinal Append(Pointer&& pobjItem, ItemKey&& pKey) {
    if (mOrder.IsFull()) Grow();
    const auto ordinal = mOrder.Append(std::move(pKey));
    mItems[mOrder.Slot(ordinal)] = std::move(pobjItem);
    return ordinal;
  }

  Pointer TakeAt(KeyedOrder::Ordinal pOrdinal) {
    Pointer item = std::move(mItems[mOrder.Slot(pOrdinal)]);
    mOrder.Remove(pOrdinal);
    return item;
  }
  // The item dies after its removal: its destructor may look at this collection.
  void RemoveAt(KeyedOrder::Ordinal pOrdinal) { TakeAt(pOrdinal); }

  void Grow() {
    const bool mostlyHoles = mOrder.Capacity() >= 4 && mOrder.Count() * 2 <= mOrder.Capacity() && !mOrder.IsWalked();
    Rebuild(mostlyHoles ? mOrder.Capacity() : std::max<std::uint32_t>(4, mOrder.Capacity() * 2));
  }

  void Rebuild(std::uint32_t plngCapacity) {
    auto items = std::make_unique<Pointer[]>(plngCapacity);
    mOrder.Rebuild(plngCapacity, [&](KeyedOrder::Ordinal pFrom, KeyedOrder::Ordinal pTo) {
      items[static_cast<std::uint32_t>(pTo) & (plngCapacity - 1)] = std::move(mItems[mOrder.Slot(pFrom)]);
    });
    mItems = std::move(items);
  }

  KeyedOrder mOrder;
  std::unique_ptr<Pointer[]> mItems;
};

}  // namespace vantrel

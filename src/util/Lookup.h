// Finds objects in collections, and makes keys and names for new ones.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "util/Collection.h"
#include "util/Variant.h"

namespace vantrel {

/// The `Name` of an item, which is a field or a property.
template <class T>
std::string_view NameOf(const T& pobjItem) {
  if constexpr (requires { pobjItem.Name(); }) {
    return pobjItem.Name();
  } else {
    return pobjItem.Name;
  }
}
template <class T>
requires requires(const T& pobjItem) { pobjItem.Name.str(); }
std::string NameOf(const T& pobjItem) { return pobjItem.Name.str(); }

/// The largest number after a prefix in the items' own keys; 0 for none. Keys of another form do not count.
template <class T>
std::int32_t LargestNumberOfItems(const Collection<T>& pcolItems, std::string_view pstrPrefix) {
  std::int32_t largest = 0;
  for (typename Collection<T>::Cursor cursor(pcolItems); const T* item = cursor.Next();) {
    largest = std::max(largest, NumberBehind(pstrPrefix, std::string(item->Key)).value_or(0));
  }
  return largest;
}

/// The number of the next key of the usual form: one more than the largest after the class word. Throws Error 6 when that is the
/// largest 32-bit integer.
template <class T>
std::int32_t NextKeyNumber(const Collection<T>& pcolItems) {
  std::int32_t largest = pcolItems.LargestKeyNumber();
  if (pcolItems.HadUnkeyed()) largest = std::max(largest, LargestNumberOfItems(pcolItems, pcolItems.KeyWord()));
  if (largest == 0x7FFFFFFF) throw Error(vntErrOverflow);
  return largest + 1;
}

/// The key of the usual form with that number.
template <class T>
std::string KeyOf(std::int32_t plngNumber) {
  return std::string(KeyText(KeyWordOf<T>::Value, plngNumber).View());
}

/// The prefix and one more than the largest number after it in the collection's keys; keys of another form do not count.
/// Takes the same time at every size of the collection when the prefix is the class word of its keys. Throws Error 6 when the
/// largest number is the largest 32-bit integer.
template <class T>
std::string NextKey(const Collection<T>& pcolItems, std::string_view pstrPrefix) {
  if (pcolItems.KeyWord() == pstrPrefix) return KeyOf<T>(NextKeyNumber(pcolItems));
  const std::int32_t largest = LargestNumberOfItems(pcolItems, pstrPrefix);
  if (largest == 0x7FFFFFFF) throw Error(vntErrOverflow);
  return std::string(pstrPrefix) + std::to_string(largest + 1);
}

/// The first item of that name (exact comparison), or null.
template <class T>
std::shared_ptr<T> FindByName(const Collection<T>& pcolItems, std::string_view pstrName) {
  for (typename Collection<T>::Cursor cursor(pcolItems); const T* item = cursor.Next();) {
    if (NameOf(*item) == pstrName) return cursor.Shared();
  }
  return nullptr;
}

template <class T>
bool IsNameFree(const Collection<T>& pcolItems, std::string_view pstrName) {
  return FindByName(pcolItems, pstrName) == nullptr;
}

/// The number after a prefix in the numbering of names: 0 for the prefix alone, -1 for a name that does not count, such as one with a
/// number beyond 32 bits.
std::int32_t NameNumber(std::string_view pstrPrefix, std::string_view pstrName);

/// The prefix alone when no name counts, else the prefix and one more than the largest number after it. A name that is the prefix
/// alone counts as 0.
template <class T>
std::string NextName(const Collection<T>& pcolItems, std::string_view pstrPrefix) {
  std::int32_t largest = -1;
  for (typename Collection<T>::Cursor cursor(pcolItems); const T* item = cursor.Next();) {
    largest = std::max(largest, NameNumber(pstrPrefix, NameOf(*item)));
  }
  if (largest == 0x7FFFFFFF) throw Error(vntErrOverflow);
  return largest < 0 ? std::string(pstrPrefix) : std::string(pstrPrefix) + std::to_string(largest + 1);
}

/// The first item with that record id, or null.
template <class T>
std::shared_ptr<T> FindByRecId(const Collection<T>& pcolItems, std::int32_t plngId) {
  for (typename Collection<T>::Cursor cursor(pcolItems); T* item = cursor.Next();) {
    if constexpr (requires { item->RecId(); }) {
      if (item->RecId() == plngId) return cursor.Shared();
    } else if constexpr (requires { item->RecId; }) {
      if (item->RecId == plngId) return cursor.Shared();
    }
  }
  return nullptr;
}

/// True when an item has that key, in the collection or only in its own `Key`.
template <class T>
bool KeyExists(const Collection<T>& pcolItems, std::string_view pstrKey) {
  if (pcolItems.Contains(pstrKey)) return true;
  if (!pcolItems.HadUnkeyed()) return false;
  for (typename Collection<T>::Cursor cursor(pcolItems); const T* item = cursor.Next();) {
    if (item->Key == pstrKey) return true;
  }
  return false;
}

/// True when the value lies between the bounds, both included, in either order. Null and NaN lie nowhere, and as a bound include
/// nothing. Throws Error 13 for other values without order.
bool IsBetween(const Variant& pvarValue, const Variant& pvarA, const Variant& pvarB);

/// The class name of a class identifier: "VNTR.Place.1" gives "Place", "Arc.Guard" gives "Guard". A text without a dot, or
/// with only a number after its first dot, comes back unchanged.
std::string StripQualifier(std::string_view pstrText);

}  // namespace vantrel

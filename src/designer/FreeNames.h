// Names for many new objects of one collection.
#pragma once

#include <algorithm>
#include <string>
#include <unordered_set>

#include "util/Lookup.h"

namespace vantrel {

/// Answers as IsNameFree and NextName do, for the collection as it was and the names taken since. Looks through it once.
class FreeNames {
 public:
  /// Ignores items for which the predicate is true.
  template <class T, class Skip>
  FreeNames(const Collection<T>& pcolItems, Skip&& pSkip) : mPrefix(pcolItems.KeyWord()) {
    for (typename Collection<T>::Cursor cursor(pcolItems); const T* item = cursor.Next();) {
      if (!pSkip(*item)) Note(item->Name());
    }
  }

  /// The name itself if it is free, else the class word with the next number. Throws Error 6 when the numbers are used up.
  std::string Take(const std::string& pstrName) {
    if (!mTaken.contains(pstrName)) return Note(pstrName);
    if (mLargest == 0x7FFFFFFF) throw Error(vntErrOverflow);
    return Note(mLargest < 0 ? mPrefix : mPrefix + std::to_string(mLargest + 1));
  }

 private:
  std::string Note(const std::string& pstrName) {
    mTaken.insert(pstrName);
    mLargest = std::max(mLargest, NameNumber(mPrefix, pstrName));
    return pstrName;
  }

  std::string mPrefix;
  std::unordered_set<std::string> mTaken;
  std::int32_t mLargest = -1;
};

}  // namespace vantrel

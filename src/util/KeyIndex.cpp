#include "util/KeyIndex.h"

#include <algorithm>

namespace vantrel {

std::size_t KeyIndex::StartOf(std::int32_t plngNumber) const {
  const auto hash = static_cast<std::uint64_t>(static_cast<std::uint32_t>(plngNumber)) * 0x9E3779B97F4A7C15ULL;
  return static_cast<std::size_t>(hash >> 32) & (mEntries.size() - 1);
}

const KeyIndex::Entry* KeyIndex::FindNumber(std::int32_t plngNumber) const {
  if (mEntries.empty()) return nullptr;
  for (std::size_t i = StartOf(plngNumber);; i = (i + 1) & (mEntries.size() - 1)) {
    if (mEntries[i].Number == plngNumber) return &mEntries[i];
    if (mEntries[i].Number == kFree) return nullptr;
  }
}

void KeyIndex::Resize(std::size_t plngEntries) {
  std::vector<Entry> old(plngEntries);
  old.swap(mEntries);
  mUsed = mLive;
  for (const Entry& entry : old) {
    if (entry.Number < 0) continue;
    std::size_t i = StartOf(entry.Number);
    while (mEntries[i].Number != kFree) i = (i + 1) & (mEntries.size() - 1);
    mEntries[i] = entry;
  }
}

void KeyIndex::Add(const ItemKey& pKey, Ordinal pOrdinal) {
  if (pKey.IsText()) {
    mTexts.emplace(pKey.TextRef(), pOrdinal);
    const auto number = NumberBehind(mWord, pKey.TextRef());
    if (number && mLargestText) mLargestText = std::max(*mLargestText, *number);
    return;
  }
  if (!pKey.IsNumber()) return;
  if ((mUsed + 1) * 3 > mEntries.size() * 2) {
    Resize(std::max<std::size_t>(32, mLive * 3 > mEntries.size() ? mEntries.size() * 2 : mEntries.size()));
  }
  std::size_t i = StartOf(pKey.Number());
  while (mEntries[i].Number >= 0) i = (i + 1) & (mEntries.size() - 1);
  if (mEntries[i].Number == kFree) ++mUsed;
  mEntries[i] = {pKey.Number(), static_cast<std::uint32_t>(pOrdinal)};
  ++mLive;
  if (mKeepsNumbers) mNumbers.push(pKey.Number());
}

void KeyIndex::Remove(const ItemKey& pKey) {
  if (pKey.IsText()) {
    mTexts.erase(pKey.TextRef());
    if (mLargestText && NumberBehind(mWord, pKey.TextRef()) == mLargestText) mLargestText.reset();
  } else if (pKey.IsNumber()) {
    if (const Entry* entry = FindNumber(pKey.Number())) {
      mEntries[static_cast<std::size_t>(entry - mEntries.data())].Number = kRemoved;
      --mLive;
    }
  }
}

std::optional<KeyIndex::Ordinal> KeyIndex::Find(const ItemKey& pKey, Ordinal pHead) const {
  if (pKey.IsText()) {
    const auto found = mTexts.find(pKey.TextRef());
    return found == mTexts.end() ? std::nullopt : std::optional(found->second);
  }
  const Entry* entry = FindNumber(pKey.Number());
  if (!entry) return std::nullopt;
  return pHead + static_cast<std::uint32_t>(entry->OrdinalLow - static_cast<std::uint32_t>(pHead));
}

std::int32_t KeyIndex::LargestInTexts() {
  if (!mLargestText) {
    std::int32_t largest = 0;
    for (const auto& [text, ordinal] : mTexts) largest = std::max(largest, NumberBehind(mWord, text).value_or(0));
    mLargestText = largest;
  }
  return *mLargestText;
}

std::int32_t KeyIndex::LargestInNumbers() {
  if (!mKeepsNumbers) {
    mKeepsNumbers = true;
    for (const Entry& entry : mEntries) {
      if (entry.Number >= 0) mNumbers.push(entry.Number);
    }
  }
  if (mNumbers.size() > 2 * mLive + 64) return mKeepsNumbers = false, mNumbers = {}, LargestInNumbers();
  while (!mNumbers.empty() && !FindNumber(mNumbers.top())) mNumbers.pop();
  return mNumbers.empty() ? 0 : mNumbers.top();
}

std::int32_t KeyIndex::LargestNumber() { return std::max(LargestInTexts(), LargestInNumbers()); }

}  // namespace vantrel

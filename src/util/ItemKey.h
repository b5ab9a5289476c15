// The key of one collection item, in eight bytes.
#pragma once

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vantrel {

/// A key made of the collection's class word and a number keeps only the number ("Token17" is 17); any other key owns its
/// text. A third form marks an item without key, a fourth a slot without item (a hole).
class ItemKey {
 public:
  ItemKey() = default;
  ItemKey(ItemKey&& pobjOther) noexcept : mBits(std::exchange(pobjOther.mBits, kHole)) {}
  ItemKey& operator=(ItemKey&& pobjOther) noexcept {
    std::swap(mBits, pobjOther.mBits);
    return *this;
  }
  ~ItemKey() {
    if (IsText()) DeleteText();
  }

  static ItemKey Unkeyed() { return ItemKey(kUnkeyed); }
  static ItemKey OfText(std::string_view pstrText) { return ItemKey(reinterpret_cast<std::uintptr_t>(new std::string(pstrText))); }
  /// The shortest form of a key text under a class word.
  [[gnu::always_inline]] static ItemKey Of(std::string_view pstrWord, std::string_view pstrKey) {
    const std::int32_t number = ShortNumber(pstrWord, pstrKey);
    return number >= 0 ? OfNumber(number) : pstrKey.empty() ? Unkeyed() : OfText(pstrKey);
  }

  static ItemKey Of(std::string_view pstrWord, std::int32_t plngNumber) {
    return plngNumber <= kLargestShort ? OfNumber(plngNumber) : OfLongNumber(pstrWord, plngNumber);
  }
  ItemKey Copy() const { return IsText() ? OfText(*Text()) : ItemKey(mBits); }

  /// Makes a hole of it.
  void Clear() {
    if (IsText()) DeleteText();
    mBits = kHole;
  }

  bool IsHole() const { return mBits == kHole; }
  bool IsUnkeyed() const { return mBits == kUnkeyed; }
  bool IsNumber() const { return (mBits & 3) == kNumberTag; }
  bool IsText() const { return mBits != kHole && (mBits & 3) == 0; }

  std::int32_t Number() const { return static_cast<std::int32_t>(mBits >> 2); }
  const std::string& TextRef() const { return *Text(); }
  /// The key as text; empty for an item without key.
  std::string ToText(std::string_view pstrWord) const;

  friend bool operator==(const ItemKey& a, const ItemKey& b) {
    return a.mBits == b.mBits || (a.IsText() && b.IsText() && *a.Text() == *b.Text());
  }

 private:
  static constexpr std::uintptr_t kHole = 0;
  static constexpr std::uintptr_t kNumberTag = 1;
  static constexpr std::uintptr_t kUnkeyed = 2;

  static_assert(sizeof(std::uintptr_t) == 8, "a 31-bit number and its tag share one word");
  // The largest number kept without text: every number of so many digits fits 31 bits.
  static constexpr std::size_t kMostDigits = 9;
  static constexpr std::int32_t kLargestShort = 999'999'999;

  static ItemKey OfNumber(std::int32_t plngNumber) { return ItemKey(static_cast<std::uintptr_t>(plngNumber) << 2 | kNumberTag); }
  static ItemKey OfLongNumber(std::string_view pstrWord, std::int32_t plngNumber);

  // The number of a key made of the word and a short number without leading zeros, -1 for any other key. Inline, because
  // every token that moves comes by here.
  [[gnu::always_inline]] static std::int32_t ShortNumber(std::string_view pstrWord, std::string_view pstrKey) {
    const std::size_t digits = pstrKey.size() - pstrWord.size();
    if (pstrWord.empty() || pstrKey.size() <= pstrWord.size() || digits > kMostDigits) return -1;
    if (std::char_traits<char>::compare(pstrKey.data(), pstrWord.data(), pstrWord.size()) != 0) return -1;
    const char* at = pstrKey.data() + pstrWord.size();
    if (*at == '0' && digits > 1) return -1;
    std::int32_t number = 0;
    for (const char* const end = pstrKey.data() + pstrKey.size(); at != end; ++at) {
      const auto digit = static_cast<unsigned>(*at - '0');
      if (digit > 9) return -1;
      number = number * 10 + static_cast<std::int32_t>(digit);
    }
    return number;
  }

  void DeleteText();  // rare, and too long to be inlined wherever keys move
  explicit ItemKey(std::uintptr_t pBits) : mBits(pBits) {}
  std::string* Text() const { return reinterpret_cast<std::string*>(mBits); }

  std::uintptr_t mBits = kHole;
};

/// A key made of a class word and a number, written without using the heap.
class KeyText {
 public:
  KeyText(std::string_view pstrWord, std::int32_t plngNumber) : mSize(pstrWord.copy(mText.data(), kLongestWord)) {
    mSize = static_cast<std::size_t>(std::to_chars(mText.data() + mSize, mText.data() + mText.size(), plngNumber).ptr - mText.data());
  }
  std::string_view View() const { return {mText.data(), mSize}; }

 private:
  static constexpr std::size_t kLongestWord = 20;
  std::array<char, kLongestWord + 12> mText;
  std::size_t mSize;
};

/// The number after a prefix as key numbering counts it: digits only, leading zeros allowed, at most 2^31 - 1.
std::optional<std::int32_t> NumberBehind(std::string_view pstrPrefix, std::string_view pstrKey);

}  // namespace vantrel

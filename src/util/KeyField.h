// Keys and names, in one pointer, of objects of which there are millions.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "util/ItemKey.h"

namespace vantrel {

template <class T>
struct KeyWordOf;

/// Reads and assigns like a std::string. A text made of the class word of T and a number ("Token17") takes 8 bytes and no
/// heap; a Collection<T> finds it without reading the text.
template <class T>
class KeyField {
 public:
  KeyField() = default;
  explicit KeyField(std::string_view pstrText) : mKey(ItemKey::Of(kWord, pstrText)) {}
  KeyField(const KeyField& pobjOther) : mKey(pobjOther.mKey.Copy()) {}
  KeyField(KeyField&& pobjOther) noexcept { mKey = std::move(pobjOther.mKey); }
  KeyField& operator=(const KeyField& pobjOther) {
    if (this != &pobjOther) mKey = pobjOther.mKey.Copy();
    return *this;
  }
  KeyField& operator=(KeyField&&) noexcept = default;
  KeyField& operator=(std::string_view pstrText) { return *this = KeyField(pstrText); }
  ~KeyField() = default;

  /// The class word and the number.
  static KeyField OfNumber(std::int32_t plngNumber) {
    KeyField field;
    field.mKey = ItemKey::Of(kWord, plngNumber);
    return field;
  }

  std::string str() const { return mKey.ToText(kWord); }
  operator std::string() const { return str(); }
  bool empty() const { return !mKey.IsNumber() && !mKey.IsText(); }
  /// The same key as collections of T keep it.
  const ItemKey& Item() const { return mKey; }

  friend bool operator==(const KeyField& a, const KeyField& b) { return a.mKey == b.mKey; }
  friend bool operator==(const KeyField& a, std::string_view b) { return a.str() == b; }
  friend bool operator==(const KeyField& a, const std::string& b) { return a.str() == b; }
  friend bool operator==(const KeyField& a, const char* b) { return a.str() == b; }
  friend std::string operator+(const KeyField& a, std::string_view b) { return a.str().append(b); }
  friend std::string operator+(std::string a, const KeyField& b) { return a += b.str(); }
  friend std::ostream& operator<<(std::ostream& pobjStream, const KeyField& pobjField) { return pobjStream << pobjField.str(); }

 private:
  static constexpr std::string_view kWord = KeyWordOf<T>::Value;

  ItemKey mKey = ItemKey::Unkeyed();
};

}  // namespace vantrel

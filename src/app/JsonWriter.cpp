#include "app/JsonWriter.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace vantrel {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// The bytes of the character that the text begins with (RFC 3629); 0 when they are not UTF-8.
std::size_t CharacterLength(std::string_view pstrText) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(pstrText[i]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || pstrText.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  const bool overlong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xF0 && byte(1) < 0x90);
  const bool surrogate = first == 0xED && byte(1) > 0x9F;
  const bool tooLarge = first == 0xF4 && byte(1) > 0x8F;
  return overlong || surrogate || tooLarge ? 0 : length;
}

std::string Escaped(char pstrControl) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(pstrControl);
  return std::string("\\u00") + kDigits[code >> 4] + kDigits[code & 0xF];
}

template <class T>
std::string Shortest(T pNumber) {
  if (!std::isfinite(pNumber)) return "null";
  char digits[32];
  return std::string(digits, std::to_chars(digits, digits + sizeof digits, pNumber).ptr);
}

}  // namespace

JsonWriter& JsonWriter::Open(char pstrBracket) {
  Separate();
  mText += pstrBracket;
  mblnNeedsComma = false;
  return *this;
}

JsonWriter& JsonWriter::Close(char pstrBracket) {
  mText += pstrBracket;
  mblnNeedsComma = true;
  return *this;
}

JsonWriter& JsonWriter::Key(std::string_view pstrKey) {
  Text(pstrKey);
  mText += ": ";
  mblnNeedsComma = false;
  return *this;
}

JsonWriter& JsonWriter::Text(std::string_view pstrText) {
  Separate();
  mText += '"';
  Quote(pstrText);
  mText += '"';
  return *this;
}

JsonWriter& JsonWriter::Number(std::int64_t plngNumber) { return Raw(std::to_string(plngNumber)); }

JsonWriter& JsonWriter::Decimal(float psngNumber) { return Raw(Shortest(psngNumber)); }

JsonWriter& JsonWriter::Decimal(double pdblNumber) { return Raw(Shortest(pdblNumber)); }

JsonWriter& JsonWriter::Boolean(bool pblnValue) { return Raw(pblnValue ? "true" : "false"); }

JsonWriter& JsonWriter::Null() { return Raw("null"); }

JsonWriter& JsonWriter::Raw(std::string_view pstrToken) {
  Separate();
  mText += pstrToken;
  return *this;
}

void JsonWriter::Separate() {
  if (mblnNeedsComma) mText += ", ";
  mblnNeedsComma = true;
}

void JsonWriter::Quote(std::string_view pstrText) {
  while (!pstrText.empty()) {
    const std::size_t length = CharacterLength(pstrText);
    const char first = pstrText.front();
    if (length == 0) {
      mText += kReplacement;
    } else if (static_cast<unsigned char>(first) < 0x20) {
      mText += Escaped(first);
    } else {
      if (first == '"' || first == '\\') mText += '\\';
      mText += pstrText.substr(0, length);
    }
    pstrText.remove_prefix(length == 0 ? 1 : length);
  }
}

}  // namespace vantrel

#include "interchange/XmlEncoding.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "interchange/PnmlError.h"
#include "interchange/XmlFault.h"

namespace vantrel {

namespace {

enum class Encoding : std::uint8_t { Utf8, Utf16Big, Utf16Little, Latin1, Windows1252 };

constexpr const char* kNoXmlCharacter = "not XML: a character that XML does not allow";

bool StartsWith(std::string_view pstrText, std::string_view pstrStart) { return pstrText.starts_with(pstrStart); }

std::string Lower(std::string_view pstrText) {
  std::string lower(pstrText);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter; });
  return lower;
}

/// The value of `encoding` in the XML declaration, or nothing.
std::string_view DeclaredEncoding(std::string_view pstrBytes) {
  if (!StartsWith(pstrBytes, "<?xml")) return {};
  const std::string_view declaration = pstrBytes.substr(0, std::min<std::size_t>(pstrBytes.find("?>"), 1024));
  const std::size_t word = declaration.find("encoding");
  if (word == std::string_view::npos) return {};
  const std::size_t open = declaration.find_first_of("\"'", word);
  if (open == std::string_view::npos) return {};
  const std::size_t close = declaration.find(declaration[open], open + 1);
  if (close == std::string_view::npos) return {};
  return declaration.substr(open + 1, close - open - 1);
}

Encoding EncodingOfName(std::string_view pstrName) {
  const std::string name = Lower(pstrName);
  if (name == "iso-8859-1" || name == "latin1" || name == "latin-1" || name == "iso8859-1" || name == "iso_8859-1") {
    return Encoding::Latin1;
  }
  if (name == "windows-1252" || name == "cp1252") return Encoding::Windows1252;
  // A text that declares UTF-16 in single bytes was recoded by a tool that kept the declaration.
  if (name.empty() || name == "utf-8" || name == "utf8" || name == "us-ascii" || name == "ascii" || StartsWith(name, "utf-16")) {
    return Encoding::Utf8;
  }
  throw XmlFault("the encoding " + QuotedForMessage(pstrName) + " is not supported", 0);
}

/// Takes a byte order mark off the bytes.
Encoding TakeEncoding(std::string_view& pstrBytes) {
  using namespace std::string_view_literals;
  struct Mark {
    std::string_view Bytes;
    Encoding Meaning;
    std::size_t Length;
  };
  static constexpr std::array<Mark, 5> kMarks{{{"\xEF\xBB\xBF"sv, Encoding::Utf8, 3},
                                               {"\xFE\xFF"sv, Encoding::Utf16Big, 2},
                                               {"\xFF\xFE"sv, Encoding::Utf16Little, 2},
                                               {"\0<"sv, Encoding::Utf16Big, 0},
                                               {"<\0"sv, Encoding::Utf16Little, 0}}};
  for (const Mark& mark : kMarks) {
    if (!StartsWith(pstrBytes, mark.Bytes)) continue;
    pstrBytes.remove_prefix(mark.Length);
    return mark.Meaning;
  }
  return EncodingOfName(DeclaredEncoding(pstrBytes));
}

void AppendUtf8(std::string& pstrText, char32_t plngCode) {
  const auto append = [&pstrText](char32_t byte) { pstrText.push_back(static_cast<char>(byte)); };
  if (plngCode < 0x80) {
    append(plngCode);
    return;
  }
  if (plngCode < 0x800) {
    append(0xC0 | plngCode >> 6);
  } else {
    if (plngCode < 0x10000) {
      append(0xE0 | plngCode >> 12);
    } else {
      append(0xF0 | plngCode >> 18);
      append(0x80 | (plngCode >> 12 & 0x3F));
    }
    append(0x80 | (plngCode >> 6 & 0x3F));
  }
  append(0x80 | (plngCode & 0x3F));
}

void AppendChecked(XmlText& pobjText, char32_t plngCode) {
  if (!IsXmlCharacter(plngCode)) throw XmlFault(kNoXmlCharacter, pobjText.Utf8.size());
  AppendUtf8(pobjText.Utf8, plngCode);
}

/// The length of the UTF-8 sequence at an offset (Unicode standard, table 3-7); 0 when it is invalid.
std::size_t SequenceLength(std::string_view pstrText, std::size_t plngAt, char32_t& plngCode) {
  const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(pstrText[plngAt + index]); };
  const unsigned char lead = byte(0);
  const std::size_t length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
  if (length < 2) {
    plngCode = lead;
    return length;
  }
  if (plngAt + length > pstrText.size()) return 0;
  plngCode = lead & (0x7FU >> length);
  for (std::size_t index = 1; index < length; ++index) {
    if ((byte(index) & 0xC0) != 0x80) return 0;
    plngCode = plngCode << 6 | (byte(index) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> kSmallest{0, 0, 0x80, 0x800, 0x10000};
  return plngCode >= kSmallest[length] && plngCode < 0x110000 ? length : 0;
}

void CheckUtf8(std::string_view pstrText) {
  for (std::size_t at = 0; at < pstrText.size();) {
    char32_t code = 0;
    const std::size_t length = SequenceLength(pstrText, at, code);
    if (length == 0) throw XmlFault("not XML: bytes that are no UTF-8", at);
    if (!IsXmlCharacter(code)) throw XmlFault(kNoXmlCharacter, at);
    at += length;
  }
}

void DecodeUtf16(std::string_view pstrBytes, bool pblnBigEndian, XmlText& pobjText) {
  const auto unit = [&](std::size_t index) -> char32_t {
    const auto first = static_cast<unsigned char>(pstrBytes[index]);
    const auto second = static_cast<unsigned char>(pstrBytes[index + 1]);
    return static_cast<char32_t>(pblnBigEndian ? first << 8 | second : second << 8 | first);
  };
  const auto isLow = [](char32_t code) { return code >= 0xDC00 && code < 0xE000; };
  std::size_t at = 0;
  for (; at + 1 < pstrBytes.size(); at += 2) {
    char32_t code = unit(at);
    if (code >= 0xD800 && code < 0xDC00 && at + 3 < pstrBytes.size() && isLow(unit(at + 2))) {
      code = 0x10000 + ((code - 0xD800) << 10) + (unit(at + 2) - 0xDC00);
      at += 2;
    }
    AppendChecked(pobjText, code);
  }
  if (at < pstrBytes.size()) throw XmlFault("not XML: half a character of UTF-16", pobjText.Utf8.size());
}

/// Code points of the bytes 0x80 to 0x9F of windows-1252; 0 where it has none.
constexpr std::array<char16_t, 32> kWindows1252{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                                0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                                0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void DecodeSingleBytes(std::string_view pstrBytes, Encoding plngEncoding, XmlText& pobjText) {
  for (const char character : pstrBytes) {
    const auto byte = static_cast<unsigned char>(character);
    const bool mapped = plngEncoding == Encoding::Windows1252 && byte >= 0x80 && byte < 0xA0;
    AppendChecked(pobjText, mapped ? kWindows1252[byte - 0x80] : byte);
  }
}

}  // namespace

bool IsXmlCharacter(char32_t plngCode) {
  if (plngCode < 0x20) return plngCode == '\t' || plngCode == '\n' || plngCode == '\r';
  return plngCode < 0xD800 || (plngCode >= 0xE000 && plngCode < 0xFFFE) || (plngCode >= 0x10000 && plngCode < 0x110000);
}

std::size_t XmlCharacterLength(std::string_view pstrText, std::size_t plngAt) {
  char32_t code = 0;
  const std::size_t length = SequenceLength(pstrText, plngAt, code);
  return IsXmlCharacter(code) ? length : 0;
}

void DecodeXml(std::string_view pstrBytes, XmlText& pobjText) {
  const Encoding encoding = TakeEncoding(pstrBytes);
  pobjText.Transcoded = encoding != Encoding::Utf8;
  pobjText.Utf8.reserve(pstrBytes.size());
  switch (encoding) {
    case Encoding::Utf8:
      pobjText.Utf8.assign(pstrBytes);
      CheckUtf8(pobjText.Utf8);
      break;
    case Encoding::Utf16Big:
    case Encoding::Utf16Little:
      DecodeUtf16(pstrBytes, encoding == Encoding::Utf16Big, pobjText);
      break;
    default:
      DecodeSingleBytes(pstrBytes, encoding, pobjText);
  }
}

}  // namespace vantrel

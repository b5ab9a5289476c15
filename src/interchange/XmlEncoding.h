#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantrel {

/// The text of an XML file as UTF-8.
struct XmlText {
  std::string Utf8;         ///< without a byte order mark
  bool Transcoded = false;  ///< true when the file has another encoding than UTF-8
};

/// True for a character that a document may hold (XML 1.0, production 2).
bool IsXmlCharacter(char32_t plngCode);

/// The bytes of the character at an offset of a UTF-8 text; 0 when it is invalid or not allowed in a document.
std::size_t XmlCharacterLength(std::string_view pstrText, std::size_t plngAt);

/// Decodes a file by its byte order mark, the form of its first bytes or the encoding that it declares (XML 1.0, appendix F):
/// UTF-8, UTF-16, US-ASCII, ISO-8859-1 and windows-1252.
/// Throws XmlFault for another encoding, for bytes that are invalid in it, and for characters that XML does not allow; pobjText then holds
/// the text before the fault.
void DecodeXml(std::string_view pstrBytes, XmlText& pobjText);

}  // namespace vantrel

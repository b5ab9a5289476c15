#include "interchange/section/SectionText.h"

#include "interchange/XmlEncoding.h"

namespace vantrel {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::size_t kByteForm = 4;  // \xHH

}  // namespace

std::string EncodeText(std::string_view pstrText) {
  std::string encoded;
  encoded.reserve(pstrText.size());
  for (std::size_t at = 0; at < pstrText.size();) {
    const std::size_t length = XmlCharacterLength(pstrText, at);
    if (length == 0) {
      const auto byte = static_cast<unsigned char>(pstrText[at]);
      encoded += {'\\', 'x', kDigits[byte >> 4], kDigits[byte & 0xF]};
      ++at;
      continue;
    }
    encoded += pstrText.substr(at, length);
    if (pstrText[at] == '\\') encoded += '\\';
    at += length;
  }
  return encoded;
}

std::string DecodeText(std::string_view pstrText) {
  std::string decoded;
  decoded.reserve(pstrText.size());
  for (std::size_t at = 0; at < pstrText.size(); ++at) {
    const std::string_view rest = pstrText.substr(at);
    if (rest.starts_with("\\\\")) {
      ++at;
    } else if (rest.starts_with("\\x") && rest.size() >= kByteForm) {
      const auto high = kDigits.find(rest[2]), low = kDigits.find(rest[3]);
      if (high != std::string_view::npos && low != std::string_view::npos) {
        decoded += static_cast<char>(high << 4 | low);
        at += kByteForm - 1;
        continue;
      }
    }
    decoded += pstrText[at];
  }
  return decoded;
}

}  // namespace vantrel

#include "interchange/section/PnmlLabel.h"

#include <algorithm>

#include "interchange/PnmlNumbers.h"
#include "interchange/XmlEncoding.h"

namespace vantrel {

std::string PnmlLabel(const std::string& pstrText) {
  constexpr const char* kBlanks = " \t\r\n";
  const std::size_t first = pstrText.find_first_not_of(kBlanks);
  if (first == std::string::npos) return {};
  const std::size_t last = pstrText.find_last_not_of(kBlanks);
  std::string label;
  for (std::size_t at = first; at <= last;) {
    const std::size_t length = XmlCharacterLength(pstrText, at);
    if (length == 0) {
      label += "\xEF\xBF\xBD";
    } else if (pstrText[at] != '\r') {
      label.append(pstrText, at, length);
    } else if (pstrText[at + 1] != '\n') {
      label += '\n';
    }
    at += std::max<std::size_t>(length, 1);
  }
  return label;
}

bool IsPnmlWeight(const std::string& pstrWeight) {
  const auto count = ParseCount(pstrWeight);
  return count && *count > 0 && std::to_string(*count) == pstrWeight;
}

}  // namespace vantrel

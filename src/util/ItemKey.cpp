#include "util/ItemKey.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace vantrel {

std::optional<std::int32_t> NumberBehind(std::string_view pstrPrefix, std::string_view pstrKey) {
  if (!pstrKey.starts_with(pstrPrefix)) return std::nullopt;
  const std::string_view digits = pstrKey.substr(pstrPrefix.size());
  if (digits.empty() || digits.front() == '-') return std::nullopt;
  std::int32_t number = 0;
  const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (problem != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

std::string ItemKey::ToText(std::string_view pstrWord) const {
  if (IsText()) return TextRef();
  if (!IsNumber()) return {};
  std::array<char, 64> text;
  if (pstrWord.size() + 10 > text.size()) return std::string(pstrWord) + std::to_string(Number());
  std::copy(pstrWord.begin(), pstrWord.end(), text.begin());
  const auto end = std::to_chars(text.data() + pstrWord.size(), text.data() + text.size(), Number()).ptr;
  return {text.data(), end};
}

}  // namespace vantrel

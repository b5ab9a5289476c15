#include "util/ItemKey.h"

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

ItemKey ItemKey::OfLongNumber(std::string_view pstrWord, std::int32_t plngNumber) { return OfText(KeyText(pstrWord, plngNumber).View()); }

void ItemKey::DeleteText() { delete Text(); }

std::string ItemKey::ToText(std::string_view pstrWord) const {
  if (IsText()) return TextRef();
  if (!IsNumber()) return {};
  return std::string(KeyText(pstrWord, Number()).View());
}

}  // namespace vantrel

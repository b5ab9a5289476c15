#include "app/WholeNumber.h"

#include <charconv>
#include <optional>
#include <string>

namespace vantrel {

namespace {

std::optional<std::uint64_t> Parse(const std::string& pstrText) {
  std::uint64_t number = 0;
  const char* const end = pstrText.data() + pstrText.size();
  const auto [stopped, fault] = std::from_chars(pstrText.data(), end, number);
  if (fault != std::errc() || stopped != end) return std::nullopt;
  return number;
}

}  // namespace

CLI::Validator WholeNumber(std::uint64_t plngLeast, std::uint64_t plngMost) {
  const std::string range = std::to_string(plngLeast) + " to " + std::to_string(plngMost);
  const auto check = [=](std::string& pstrText) -> std::string {
    const auto number = Parse(pstrText);
    if (!number || *number < plngLeast || *number > plngMost) return "\"" + pstrText + "\" is not a whole number from " + range;
    pstrText = std::to_string(*number);
    return {};
  };
  return CLI::Validator(check, "");
}

}  // namespace vantrel

#include "app/Json.h"

#include <charconv>
#include <cmath>
#include <cstdint>

#include <nlohmann/json.hpp>

namespace vantrel {

using nlohmann::ordered_json;

// The library knows no float: 0.1F as a double would be written as 0.10000000149011612.
ordered_json Decimal(float psngNumber) {
  char digits[32];
  const char* const end = std::to_chars(digits, digits + sizeof digits, psngNumber).ptr;
  double number = 0;
  std::from_chars(digits, end, number);
  return Decimal(number);
}

ordered_json Decimal(double pdblNumber) {
  constexpr double kLargestExact = 9007199254740992;  // 2^53
  if (std::abs(pdblNumber) <= kLargestExact && std::trunc(pdblNumber) == pdblNumber) return static_cast<std::int64_t>(pdblNumber);
  return pdblNumber;
}

std::string OneLine(const ordered_json& pobjJson) { return pobjJson.dump(-1, ' ', false, ordered_json::error_handler_t::replace); }

}  // namespace vantrel

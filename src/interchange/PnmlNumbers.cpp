#include "interchange/PnmlNumbers.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace vantrel {

namespace {

constexpr double kFarthest = 1e7;

template <typename T>
std::optional<T> ParseAll(std::string_view pstrText) {
  T number{};
  const char* last = pstrText.data() + pstrText.size();
  const auto [end, problem] = std::from_chars(pstrText.data(), last, number);
  if (problem != std::errc() || end != last) return std::nullopt;
  return number;
}

}  // namespace

std::optional<double> ParseCoordinate(std::string_view pstrText) {
  if (pstrText.starts_with('+')) {
    pstrText.remove_prefix(1);
    if (pstrText.starts_with('-')) return std::nullopt;
  }
  const std::optional<double> number = ParseAll<double>(pstrText);
  if (!number || !std::isfinite(*number) || std::abs(*number) > kFarthest) return std::nullopt;
  return number;
}

std::optional<std::int32_t> ParseCount(std::string_view pstrText) {
  constexpr std::string_view kOrdinary = "Default,";
  if (pstrText.starts_with(kOrdinary)) pstrText.remove_prefix(kOrdinary.size());
  const std::optional<std::int32_t> number = ParseAll<std::int32_t>(pstrText);
  if (!number || *number < 0) return std::nullopt;
  return number;
}

}  // namespace vantrel

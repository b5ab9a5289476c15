#include "util/Lookup.h"

#include <compare>

namespace vantrel {

std::int32_t NameNumber(std::string_view pstrPrefix, std::string_view pstrName) {
  if (!pstrName.starts_with(pstrPrefix)) return -1;
  if (pstrName.size() == pstrPrefix.size()) return 0;
  double number = 0;
  if (!ParseNumber(pstrName.substr(pstrPrefix.size()), number)) return -1;
  constexpr double kEnd = 2147483647.5;  // rounds to the first number beyond the range
  return number > -1 && number < kEnd ? Variant(number).ToInt32() : -1;
}

bool IsBetween(const Variant& pvarValue, const Variant& pvarA, const Variant& pvarB) {
  const auto atLeast = [](const Variant& pvarX, const Variant& pvarY) {
    return !pvarX.IsNull() && !pvarY.IsNull() && std::is_gteq(Compare(pvarX, pvarY));
  };
  const auto equals = [&](const Variant& pvarBound) { return atLeast(pvarValue, pvarBound) && atLeast(pvarBound, pvarValue); };
  return equals(pvarA) || equals(pvarB) || (atLeast(pvarA, pvarValue) && atLeast(pvarValue, pvarB)) ||
         (atLeast(pvarB, pvarValue) && atLeast(pvarValue, pvarA));
}

std::string StripQualifier(std::string_view pstrText) {
  const auto first = pstrText.find('.');
  if (first == std::string_view::npos) return std::string(pstrText);
  const std::string_view rest = pstrText.substr(first + 1);
  double number = 0;
  if (ParseNumber(rest, number)) return std::string(pstrText);
  return std::string(rest.substr(0, rest.find('.')));
}

}  // namespace vantrel

#pragma once

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>

#include "util/Date.h"

namespace vantrel {

/// Any bytes as a text that XML can contain: a backslash is doubled, and a byte that XML cannot contain becomes `\xHH`.
std::string EncodeText(std::string_view pstrText);
/// The bytes of such a text. A backslash that begins neither form is an ordinary one.
std::string DecodeText(std::string_view pstrText);

/// A value of a section as text: `true` and `false`, numbers with a decimal point and all their digits, dates as milliseconds.
template <class T>
std::string ToSectionText(const T& pValue) {
  if constexpr (std::is_same_v<T, std::string>) {
    return EncodeText(pValue);
  } else if constexpr (std::is_same_v<T, bool>) {
    return pValue ? "true" : "false";
  } else if constexpr (std::is_same_v<T, Date>) {
    return ToSectionText(pValue.Milliseconds());
  } else if constexpr (std::is_enum_v<T>) {
    return ToSectionText(static_cast<std::underlying_type_t<T>>(pValue));
  } else {
    std::array<char, 64> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), pValue).ptr};
  }
}

/// The value of a text; empty when it is not of that type.
template <class T>
std::optional<T> FromSectionText(std::string_view pstrText) {
  if constexpr (std::is_same_v<T, std::string>) {
    return DecodeText(pstrText);
  } else if constexpr (std::is_same_v<T, bool>) {
    if (pstrText != "true" && pstrText != "false") return std::nullopt;
    return pstrText == "true";
  } else if constexpr (std::is_same_v<T, Date>) {
    const auto milliseconds = FromSectionText<std::int64_t>(pstrText);
    return milliseconds ? std::optional(Date::FromMilliseconds(*milliseconds)) : std::nullopt;
  } else if constexpr (std::is_enum_v<T>) {
    const auto number = FromSectionText<std::underlying_type_t<T>>(pstrText);
    return number ? std::optional(static_cast<T>(*number)) : std::nullopt;
  } else {
    T number{};
    const char* last = pstrText.data() + pstrText.size();
    const auto [end, problem] = std::from_chars(pstrText.data(), last, number);
    return problem == std::errc() && end == last ? std::optional(number) : std::nullopt;
  }
}

}  // namespace vantrel

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrel {

/// Numbers as net files have them: with a decimal point in every locale, and nothing around them.

/// A coordinate in pixels; empty for a text that is not a finite number within ten million pixels of zero.
std::optional<double> ParseCoordinate(std::string_view pstrText);

/// A whole number from 0 to 2^31 - 1; nothing for any other text. An editor that knows several kinds of tokens writes `Default,3` for three
/// of the ordinary ones.
std::optional<std::int32_t> ParseCount(std::string_view pstrText);

}  // namespace vantrel

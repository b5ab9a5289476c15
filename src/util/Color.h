// Colours as the system stores them.
#pragma once

#include <cstdint>

namespace vantrel {

/// 32-bit BGR: red in the lowest byte, then green, then blue; the highest byte is 0.
using Color = std::int32_t;

constexpr Color kBlack = 0x000000;
constexpr Color kWhite = 0xFFFFFF;

}  // namespace vantrel

#pragma once

#include <cstddef>
#include <cstdint>

namespace vantrel {

/// Indexes a vector with the signed numbers, from 0, of a layout's nodes and rows.
inline std::size_t At(std::int32_t plngIndex) { return static_cast<std::size_t>(plngIndex); }

}  // namespace vantrel

#pragma once

#include <cstddef>
#include <cstdint>

namespace vantrel {

/// The nodes and rows of a layout are numbered from 0 by signed numbers; vectors want them unsigned.
inline std::size_t At(std::int32_t plngIndex) { return static_cast<std::size_t>(plngIndex); }

}  // namespace vantrel

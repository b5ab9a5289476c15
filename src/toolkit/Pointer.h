// The shapes of the mouse pointer.
#pragma once

#include <cstdint>

namespace vantrel {

/// Codes of the usual pointers, and the picture of a hand.
enum PointerShape : std::int16_t {
  vntPointerDefault = 0,
  vntPointerCross = 2,
  vntPointerSizeNESW = 6,
  vntPointerSizeNS = 7,
  vntPointerSizeNWSE = 8,
  vntPointerSizeWE = 9,
  vntPointerHourglass = 11,
  vntPointerHand = 99  ///< the picture "HandPointer"
};

}  // namespace vantrel

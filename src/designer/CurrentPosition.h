// The position of the next object.
#pragma once

#include <cmath>

#include "designer/Vantrel.h"

namespace vantrel {

/// Error 6 when the host has set the control's current position to one that no object can have.
inline void RequirePosition(const Vantrel& pobjControl) {
  if (!std::isfinite(pobjControl.CurrentX) || !std::isfinite(pobjControl.CurrentY)) throw Error(vntErrOverflow);
}

}  // namespace vantrel

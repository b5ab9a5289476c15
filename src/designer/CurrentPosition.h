// Where the next object goes.
#pragma once

#include <cmath>

#include "designer/Vantrel.h"

namespace vantrel {

/// Error 6 when the host has set the control's current position to what no object can lie at.
inline void RequirePosition(const Vantrel& pobjControl) {
  if (!std::isfinite(pobjControl.CurrentX) || !std::isfinite(pobjControl.CurrentY)) throw Error(vntErrOverflow);
}

}  // namespace vantrel

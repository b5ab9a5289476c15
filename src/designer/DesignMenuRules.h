// Which entries of the design menu are enabled.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

/// Asked each time before the menu shows.
void EnableDesignMenu(const Vantrel& pobjControl, MenuItem& pobjMenu);

}  // namespace vantrel

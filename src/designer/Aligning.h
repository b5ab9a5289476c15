// Lines up the selected objects.
#pragma once

#include <string>

#include "designer/Vantrel.h"

namespace vantrel {

/// By the centres of their pictures; the first one that is no bend point stays where it is. "Vertical" or "Horizontal" is the direction
/// of the line; any other text moves nothing.
void AlignSelection(Vantrel& pobjControl, const std::string& pstrDirection);

}  // namespace vantrel

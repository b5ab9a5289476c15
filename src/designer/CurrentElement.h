// The element that the user clicked last.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

/// Makes an element current: selects its object, marks the element and tells the host; or none. Error 91 for an element that shows no
/// object of the workflow.
void SetCurrentControl(Vantrel& pobjControl, const Ref<Element>& pobjElement);

}  // namespace vantrel

// Double-clicks on the chart.
#pragma once

#include "designer/PointerInput.h"

namespace vantrel {

class Vantrel;

/// Raises the host's event for a transition, shows the tokens of a place while testing, edits a label's text while designing. False where a
/// double-click does nothing.
bool DoubleClickAt(Vantrel& pobjControl, const PointerInput& pobjInput);

}  // namespace vantrel

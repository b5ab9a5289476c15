// Double-clicks on the chart.
#pragma once

#include "designer/PointerInput.h"

namespace vantrel {

class Vantrel;

/// Tells the host of a transition, shows the tokens of a place while testing, edits a label's text while designing. False where a
/// double-click means nothing.
bool DoubleClickAt(Vantrel& pobjControl, const PointerInput& pobjInput);

}  // namespace vantrel

// Redraws the chart, and takes a test off it.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

/// Nothing in run mode. Errors end it quietly.
void RefreshChart(Vantrel& pobjControl);
/// No tokens, no counts, nothing enabled.
void ResetChart(Vantrel& pobjControl);

}  // namespace vantrel

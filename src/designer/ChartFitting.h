// Keeps the chart and the scroll bars' ranges together.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

// Each is one pass over the elements, hidden ones included: they show up later where they are now.

/// Moves all objects to where no element has a negative coordinate, redrawing those alone, and widens the ranges to them.
void FitChart(Vantrel& pobjControl);
/// Widens the ranges, into the negative too, to where the elements are.
void ExtendScrollRange(Vantrel& pobjControl);

}  // namespace vantrel

// Bringing home to the model where the user put a label, and how large.
#pragma once

#include "chart/Label.h"

namespace vantrel {

class Vantrel;

/// Stores where the label lies in the object that it belongs to, and redraws what follows from it. Marks the workflow dirty.
void StoreLabelPlace(Vantrel& pobjControl, Label& pobjLabel);

/// Stores the label's size, twips, and with it its place. Marks the workflow dirty.
void StoreLabelSize(Vantrel& pobjControl, Label& pobjLabel, float psngHeight, float psngWidth);

}  // namespace vantrel

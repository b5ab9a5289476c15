// Stores a label's position and size in its model object.
#pragma once

#include "chart/Label.h"

namespace vantrel {

class Vantrel;

/// Stores the label's position in its object and redraws what depends on it. Marks the workflow dirty.
void StoreLabelPlace(Vantrel& pobjControl, Label& pobjLabel);

/// Stores the label's size, twips, and its position. Marks the workflow dirty.
void StoreLabelSize(Vantrel& pobjControl, Label& pobjLabel, float psngHeight, float psngWidth);

}  // namespace vantrel

// The end of drawing an arc.
#pragma once

#include "chart/Image.h"

namespace vantrel {

class Vantrel;

/// Joins the current control's object to the object of an image, if the rules allow it; drawing the arc is over in any case.
/// Raises ArcInserted.
void CompleteArc(Vantrel& pobjControl, Image& pobjTarget);

}  // namespace vantrel

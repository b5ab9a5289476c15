// The end of drawing an arc.
#pragma once

#include "chart/Image.h"

namespace vantrel {

class Vantrel;

/// Joins the current control's object to the object of an image, if the rules allow it, and raises ArcInserted. Ends the drawing of the arc
/// in any case.
void CompleteArc(Vantrel& pobjControl, Image& pobjTarget);

}  // namespace vantrel

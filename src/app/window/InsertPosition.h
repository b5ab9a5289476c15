#pragma once

#include "chart/Geometry.h"

namespace vantrel {

class Vantrel;

/// Sets the control's CurrentX and CurrentY for an object that a command inserts: where the user clicked last if that is in view (twips),
/// else the middle of the view; then moved down to the right until no picture is in the way.
void ChooseInsertPosition(Vantrel& pobjControl, const Rect& pobjInView);

}  // namespace vantrel

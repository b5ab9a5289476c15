#pragma once

#include "chart/Geometry.h"

namespace vantrel {

class Vantrel;

/// Moves the control's CurrentX and CurrentY to where the user sees what a command inserts: where he clicked last, else the middle of
/// the part in view (twips); and down to the right until no picture lies there.
void ChooseInsertPosition(Vantrel& pobjControl, const Rect& pobjInView);

}  // namespace vantrel

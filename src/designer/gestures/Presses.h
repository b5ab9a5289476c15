// A press of the left or the right button, by what is under the mouse.
#pragma once

#include <memory>

#include "chart/Image.h"
#include "chart/Label.h"
#include "designer/PointerInput.h"

namespace vantrel {

class Gesture;
class Vantrel;

/// Each handles the press and returns the drag that it begins, or null. A menu or a firing may close the control meanwhile; then they
/// return null.
std::shared_ptr<Gesture> PressOnChart(Vantrel& pobjControl, const PointerInput& pobjInput);
std::shared_ptr<Gesture> PressOnImage(Vantrel& pobjControl, Image& pobjImage, const PointerInput& pobjInput);
std::shared_ptr<Gesture> PressOnLabel(Vantrel& pobjControl, Label& pobjLabel, const PointerInput& pobjInput);

/// Finds what is under the mouse and does one of the above, or begins the drag of a handle.
std::shared_ptr<Gesture> PressAt(Vantrel& pobjControl, const PointerInput& pobjInput);

}  // namespace vantrel

// The mouse moves over the chart without a button.
#pragma once

#include "chart/Element.h"
#include "designer/PointerInput.h"

namespace vantrel {

class Vantrel;

/// Shows the pointer of what is under the mouse and, while an arc is being drawn, the rubber-band line to it.
void Hover(Vantrel& pobjControl, const PointerInput& pobjInput);

/// Shows the pointer over an object image: while testing, a hand where a click does something.
void ShowPointerOver(Vantrel& pobjControl, const Element& pobjImage);

/// The pointer over the background: the cross-hair of the control while an arc is being drawn.
void ShowChartPointer(Vantrel& pobjControl);

/// In the test modes objects are played with, not edited.
bool IsTesting(const Vantrel& pobjControl);

}  // namespace vantrel

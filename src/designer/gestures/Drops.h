// Drops what the host drags on the chart.
#pragma once

#include "designer/PointerInput.h"

namespace vantrel {

class Vantrel;

/// Raises ObjectDragDrop for the background, and ObjectDropped for a transition whose image takes objects.
/// False when nothing takes the control's DragObject.
bool DropAt(Vantrel& pobjControl, const PointerInput& pobjInput);

}  // namespace vantrel

// What the host drags is let go over the chart.
#pragma once

#include "designer/PointerInput.h"

namespace vantrel {

class Vantrel;

/// On the background ObjectDragDrop is raised; on a transition, on an image that takes objects, ObjectDropped.
/// False when nothing takes the control's DragObject.
bool DropAt(Vantrel& pobjControl, const PointerInput& pobjInput);

}  // namespace vantrel

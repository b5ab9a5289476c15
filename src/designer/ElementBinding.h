// Gives the objects of a workflow their elements on the chart.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

/// Throws Error 35601 when the image list lacks the object's picture; for a transition only when it lacks the usual picture as well. Call
/// it before you change anything else for the object.
void RequirePicture(const Vantrel& pobjControl, const Place& pobjPlace);
void RequirePicture(const Vantrel& pobjControl, const Transition& pobjTransition);

// Each takes time in proportion to the object alone and removes elements that the object already has on this chart.

/// Throws as RequirePicture does, with nothing bound.
void Bind(Vantrel& pobjControl, Place& pobjPlace);
/// The same. A transition with an unknown picture takes the usual ones.
void Bind(Vantrel& pobjControl, Transition& pobjTransition);
/// Also links the segments of an arc that was stored, and gives it its bend points.
void Bind(Vantrel& pobjControl, Arc& pobjArc);
void Bind(Vantrel& pobjControl, Notation& pobjNotation);

}  // namespace vantrel

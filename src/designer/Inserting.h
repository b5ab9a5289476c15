// Inserts places, transitions, notes and bend points.
#pragma once

#include <memory>
#include <string>

#include "designer/Vantrel.h"

namespace vantrel {

// Objects are inserted at the control's current position. Error 91 without a workflow, 6 when the position is not finite.

std::shared_ptr<Place> InsertPlace(Vantrel& pobjControl, const std::string& pstrCaption);
std::shared_ptr<Transition> InsertTransition(Vantrel& pobjControl, const std::string& pstrCaption);
std::shared_ptr<Notation> AddNotation(Vantrel& pobjControl);

/// Splits the segment that is the current element, if one is.
void InsertElbow(Vantrel& pobjControl);
/// Removes that segment, unless it is the arc's only one.
void RemoveElbow(Vantrel& pobjControl);

}  // namespace vantrel

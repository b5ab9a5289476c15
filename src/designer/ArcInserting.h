// Inserts arcs.
#pragma once

#include <memory>

#include "designer/Vantrel.h"

namespace vantrel {

/// Null, with a message, when the rules forbid it. Error 91 without a workflow or an end, 5 for an end of another workflow.
std::shared_ptr<Arc> InsertArc(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjFrom,
                               const std::shared_ptr<ModelObject>& pobjTo);
/// Begins the gesture that draws an arc from the current element's object, or says why not.
void StartArcInsert(Vantrel& pobjControl);
/// Ends it, whatever came of it.
void EndArcInsert(Vantrel& pobjControl);

}  // namespace vantrel

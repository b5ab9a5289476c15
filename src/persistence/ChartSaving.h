// The steps of a save, one for each kind of object on the chart.
#pragma once

#include <functional>

#include "model/Workflow.h"
#include "persistence/DatabaseAccess.h"

namespace vantrel {

/// Each writes the rows of one kind and deletes those whose objects are gone. The workflow must have its id. True when the step
/// completed; a failure goes into the report and ends the step with false, objects already written keep their new ids. All throw
/// TransactionLost.
bool SaveTransitions(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow);
bool SavePlaces(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow);
/// Throws failures and reports none. False for a workflow without arcs. Arcs that lack an end keep their rows.
bool SaveArcs(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow);
/// An arc with one segment has no rows.
bool SaveVectors(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow);
bool SaveNotations(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow);

/// Runs a step and reports its failure.
bool RunStep(DatabaseAccess& pobjAccess, const std::function<void()>& pStep);

}  // namespace vantrel

// Rows that somebody else has deleted.
#pragma once

#include "model/Workflow.h"
#include "persistence/DatabaseAccess.h"

namespace vantrel {

/// Takes the ids off those objects of the workflow whose rows are gone, so that saving inserts them; off all of them and off the workflow
/// when its own row is gone, or has another GUID: then another workflow has got the id. Whoever calls keeps the marks of the objects.
void ForgetGoneRows(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow);

/// Takes the ids off the workflow and off all that is drawn in it. Embedded workflows keep theirs.
void ForgetRows(Workflow& pobjWorkflow);

}  // namespace vantrel

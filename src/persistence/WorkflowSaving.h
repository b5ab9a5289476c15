// The row of a workflow, and the order in which a chart is written and deleted.
#pragma once

#include <memory>

#include "model/Workflow.h"
#include "persistence/DatabaseAccess.h"

namespace vantrel {

/// Writes the workflow's row, where it is new or has changed, then its chart. Throws the failure of an arc, and TransactionLost.
void SaveRowAndChart(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow, bool pblnHasChanged);

/// Deletes the rows of the chart. A refused statement goes into the report, and the others run.
void DeleteRowAndChart(DatabaseAccess& pobjAccess, std::int32_t plngWorkflowId);

}  // namespace vantrel

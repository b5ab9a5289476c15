// The background colour of a stored workflow's chart, in a table of the program's own.
#pragma once

#include <cstdint>
#include <optional>

#include "database/Connection.h"
#include "util/Color.h"

namespace vantrel {

/// Empty when none was saved, or when the database, perhaps a host's, has no table `vantrel_workflow`. Throws the other Errors of the
/// connection.
std::optional<Color> ReadChartColor(Connection& pobjConnection, std::int32_t plngWorkflowId);

/// Call it in the transaction that saves the workflow, after its row. Does nothing and returns false when the database has no table for
/// it. Throws the other Errors of the connection.
bool SaveChartColor(Connection& pobjConnection, std::int32_t plngWorkflowId, Color plngColor);

}  // namespace vantrel

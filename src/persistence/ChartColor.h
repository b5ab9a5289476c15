// The background colour of a stored workflow's chart, in a table of the program's own.
#pragma once

#include <cstdint>
#include <optional>

#include "database/Connection.h"
#include "util/Color.h"

namespace vantrel {

/// Nothing when none was saved, or when the database has no table `vantrel_workflow`, as a host's need not. Throws the other Errors
/// of the connection.
std::optional<Color> ReadChartColor(Connection& pobjConnection, std::int32_t plngWorkflowId);

/// Belongs into the transaction that saves the workflow, which must have its row by then. Does nothing and returns false when the
/// database has no table for it. Throws the other Errors of the connection.
bool SaveChartColor(Connection& pobjConnection, std::int32_t plngWorkflowId, Color plngColor);

}  // namespace vantrel

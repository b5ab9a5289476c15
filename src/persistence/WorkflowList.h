// Lists the workflows of a database without reading them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "database/Connection.h"
#include "util/Variant.h"

namespace vantrel {

/// The outline of a stored workflow.
struct WorkflowListing {
  std::int32_t Id = 0;
  Variant GUID;                              ///< Null if the database has none
  std::string StartPlaceName, EndPlaceName;  ///< empty if there is no such place
  std::int32_t Places = 0, Transitions = 0, Arcs = 0;
  std::vector<std::int32_t> EmbeddedIn;  ///< ids of the workflows with transitions that embed it, ascending, each once
};

/// All stored workflows in order of their ids, at one moment, with a handful of statements for any number of workflows. Throws the Errors
/// of the connection and shows nothing.
std::vector<WorkflowListing> ListWorkflows(Connection& pobjConnection);

}  // namespace vantrel

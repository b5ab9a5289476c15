// Makes a stored workflow look as if it had never been stored.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// Clears the database ids of a workflow that was read, and of all that belongs to it, embedded workflows included. Returns a line for
/// every transition whose embedded workflow is missing.
std::vector<std::string> MakeNew(const std::shared_ptr<Workflow>& pobjWorkflow);

}  // namespace vantrel

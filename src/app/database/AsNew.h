// A stored workflow as if it had never been stored.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// Takes the database ids off a workflow and off all that is drawn in it. Embedded workflows keep theirs.
void ForgetRecords(Workflow& pobjWorkflow);

/// Takes the database ids off a workflow that was read, and off all that belongs to it, embedded workflows included; one that
/// several transitions embed, which reading gives several times, becomes one object. Returns a line for every transition whose
/// embedded workflow is not there.
std::vector<std::string> MakeNew(const std::shared_ptr<Workflow>& pobjWorkflow);

}  // namespace vantrel

// What `vantrel show` prints.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>

#include "app/database/StoredRun.h"
#include "model/Workflow.h"

namespace vantrel {

struct StoredWorkflow {
  std::shared_ptr<vantrel::Workflow> Workflow;
  StoredRun Run;
};

/// Writes it for a person.
void WriteStoredWorkflow(std::ostream& pobjOut, const StoredWorkflow& pobjStored);
/// One JSON object on one line; docs/command-line.md describes it.
std::string StoredWorkflowJson(const StoredWorkflow& pobjStored);

}  // namespace vantrel

// Where embedded workflows come from.
#pragma once

#include <cstdint>
#include <memory>

#include "model/Forward.h"

namespace vantrel {

/// Reads stored workflows for the model, which sends no statements. VNTRDB is one.
class WorkflowReader {
 public:
  WorkflowReader() = default;
  WorkflowReader(const WorkflowReader&) = delete;
  WorkflowReader& operator=(const WorkflowReader&) = delete;
  virtual ~WorkflowReader() = default;

  /// The workflow with that database id, or null when there is none. Throws what reading it throws.
  virtual std::shared_ptr<Workflow> ReadWorkflow(std::int32_t plngRecId) = 0;
};

}  // namespace vantrel

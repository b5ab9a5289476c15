// The stored workflows, for a program that is open for hours.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/database/DatabaseAddress.h"
#include "model/Workflow.h"
#include "persistence/WorkflowList.h"

namespace vantrel {

/// Every call opens the database and closes it again: nothing is locked while the user thinks, and a server that was away is
/// found again. All calls throw DatabaseFailure.
class WorkflowStore {
 public:
  explicit WorkflowStore(DatabaseAddress pobjAddress) : mAddress(std::move(pobjAddress)) {}

  /// For titles and messages.
  std::string Name() const { return mAddress.Shown(); }

  std::vector<WorkflowListing> List() const;
  std::shared_ptr<Workflow> Read(std::int32_t plngId) const;
  /// Saves the workflow with those embedded in it, all or nothing; when it throws, ids and marks of change are what they were.
  /// What others saved or deleted of it meanwhile does not stay: see SaveWhole. Cases and tokens are not saved.
  void Save(const std::shared_ptr<Workflow>& pobjWorkflow) const;
  /// Saves it under a new id, which it keeps; what was stored before stays. Embedded workflows are shared by both.
  void SaveAsNew(const std::shared_ptr<Workflow>& pobjWorkflow) const;
  /// Refuses a workflow that others embed.
  void Delete(std::int32_t plngId) const;

 private:
  DatabaseAddress mAddress;
};

}  // namespace vantrel

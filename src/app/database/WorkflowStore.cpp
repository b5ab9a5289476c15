#include "app/database/WorkflowStore.h"

#include "app/database/Deletion.h"
#include "app/database/OpenDatabase.h"
#include "database/TransactionScope.h"
#include "persistence/GoneRows.h"
#include "persistence/SavedMarks.h"

namespace vantrel {

std::vector<WorkflowListing> WorkflowStore::List() const {
  OpenDatabase database(mAddress);
  std::vector<WorkflowListing> listing;
  database.Do([&] { listing = ListWorkflows(database.Connection()); });
  return listing;
}

std::shared_ptr<Workflow> WorkflowStore::Read(std::int32_t plngId) const { return OpenDatabase(mAddress).ReadWorkflow(plngId); }

void WorkflowStore::Save(const std::shared_ptr<Workflow>& pobjWorkflow) const { OpenDatabase(mAddress).Save(pobjWorkflow); }

void WorkflowStore::SaveAsNew(const std::shared_ptr<Workflow>& pobjWorkflow) const {
  OpenDatabase database(mAddress);
  SavedMarks marks;
  marks.KeepChart(pobjWorkflow);
  ForgetRows(*pobjWorkflow);
  try {
    database.Save(pobjWorkflow);
  } catch (...) {
    marks.Restore();
    throw;
  }
}

void WorkflowStore::Delete(std::int32_t plngId) const {
  OpenDatabase database(mAddress);
  database.Do([&] {
    TransactionScope transaction(database.Connection(), Transaction::Write);
    const auto stored = ListWorkflows(database.Connection());
    if (!IsStored(stored, plngId)) throw database.NoSuchWorkflow(plngId);
    RefuseEmbedded(database.Name(), ToDelete(stored, {plngId}, false));
    database.Access().DeleteWorkflow(plngId);
    database.Access().Failed().ThrowFirst();
    transaction.Commit();
  });
}

}  // namespace vantrel

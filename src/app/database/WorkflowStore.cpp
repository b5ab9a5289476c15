#include "app/database/WorkflowStore.h"

#include "app/database/AsNew.h"
#include "app/database/Deletion.h"
#include "app/database/OpenDatabase.h"
#include "database/TransactionScope.h"
#include "persistence/SavedMarks.h"
#include "persistence/WholeSave.h"

namespace vantrel {

namespace {

bool IsThere(OpenDatabase& pobjDatabase, std::int32_t plngId) {
  const auto rows = pobjDatabase.Connection().NewRecordset();
  rows->Open("SELECT Id FROM Workflow WHERE Id = " + std::to_string(plngId));
  return !rows->Eof();
}

SavedMarks MarksOf(const std::shared_ptr<Workflow>& pobjWorkflow) {
  SavedMarks marks;
  marks.KeepChart(pobjWorkflow);
  for (const auto& place : pobjWorkflow->Places) {
    const auto definitions = place->TokenProperties;
    if (!definitions) continue;
    for (const auto& definition : *definitions) marks.Keep(definition);
  }
  return marks;
}

void SaveNew(OpenDatabase& pobjDatabase, const std::shared_ptr<Workflow>& pobjWorkflow) {
  SavedMarks marks = MarksOf(pobjWorkflow);
  ForgetRecords(*pobjWorkflow);
  try {
    SaveWhole(pobjDatabase.Access(), pobjWorkflow);
  } catch (...) {
    marks.Restore();
    throw;
  }
}

}  // namespace

std::vector<WorkflowListing> WorkflowStore::List() const {
  OpenDatabase database(mAddress);
  std::vector<WorkflowListing> listing;
  database.Do([&] { listing = ListWorkflows(database.Connection()); });
  return listing;
}

std::shared_ptr<Workflow> WorkflowStore::Read(std::int32_t plngId) const { return OpenDatabase(mAddress).ReadWorkflow(plngId); }

void WorkflowStore::Save(const std::shared_ptr<Workflow>& pobjWorkflow) const {
  OpenDatabase database(mAddress);
  database.Do([&] {
    if (pobjWorkflow->RecId != 0 && !IsThere(database, pobjWorkflow->RecId)) return SaveNew(database, pobjWorkflow);
    SaveWhole(database.Access(), pobjWorkflow);
  });
}

void WorkflowStore::SaveAsNew(const std::shared_ptr<Workflow>& pobjWorkflow) const {
  OpenDatabase database(mAddress);
  database.Do([&] { SaveNew(database, pobjWorkflow); });
}

void WorkflowStore::Delete(std::int32_t plngId) const {
  OpenDatabase database(mAddress);
  database.Do([&] {
    TransactionScope transaction(database.Connection(), Transaction::Write);
    const auto stored = ListWorkflows(database.Connection());
    if (!IsStored(stored, plngId)) throw database.NoSuchWorkflow(plngId);
    RefuseEmbedded(database.Name(), ToDelete(stored, {plngId}, false));
    database.Access().DeleteWorkflow(plngId);
    if (database.Access().Failures() == 0) transaction.Commit();
  });
}

}  // namespace vantrel

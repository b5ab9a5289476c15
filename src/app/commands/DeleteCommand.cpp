#include "app/commands/DeleteCommand.h"

#include <iostream>

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"
#include "app/database/Deletion.h"
#include "app/database/OpenDatabase.h"
#include "app/database/WorkflowId.h"
#include "database/TransactionScope.h"

namespace vantrel {

void DeleteCommand::Declare(CLI::App& pobjApp) {
  pobjApp.add_option("ID", mcolIds, "Ids of the workflows, see `vantrel list`")->required()->transform(WorkflowId())->type_name("");
  mDatabase.Declare(pobjApp);
  pobjApp.add_flag("--force", mblnForce, "Delete workflows that others embed as well: the transitions that embed them are left empty");
  pobjApp.add_flag("--embedded", mblnEmbedded, "Delete the workflows embedded in them as well, unless others embed these");
  pobjApp.footer(
      "Deletes all of them or none. Token property definitions, cases and tokens stay in the database.\n"
      "Example: vantrel delete 3 4 --embedded");
}

int DeleteCommand::Run() {
  OpenDatabase database(mDatabase.Existing());
  std::vector<WorkflowListing> deleted;
  database.Do([&] {
    TransactionScope transaction(database.Connection(), Transaction::Write);
    const auto stored = ListWorkflows(database.Connection());
    for (const std::int32_t id : mcolIds) {
      if (!IsStored(stored, id)) throw database.NoSuchWorkflow(id);
    }
    deleted = ToDelete(stored, mcolIds, mblnEmbedded);
    if (!mblnForce) RefuseEmbedded(database.Name(), deleted);
    for (const WorkflowListing& workflow : deleted) database.Access().DeleteWorkflow(workflow.Id);
    database.Access().Failed().ThrowFirst();
    transaction.Commit();
  });
  for (const WorkflowListing& workflow : deleted) {
    std::cout << "Deleted workflow " << workflow.Id << ": " << workflow.Places << " places, " << workflow.Transitions << " transitions, "
              << workflow.Arcs << " arcs.\n";
  }
  return kDone;
}

}  // namespace vantrel

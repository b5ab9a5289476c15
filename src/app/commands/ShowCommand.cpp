#include "app/commands/ShowCommand.h"

#include <iostream>

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"
#include "app/database/OpenDatabase.h"
#include "app/database/WorkflowId.h"
#include "app/show/StoredWorkflow.h"
#include "database/TransactionScope.h"

namespace vantrel {

void ShowCommand::Declare(CLI::App& pobjApp) {
  pobjApp.add_option("ID", mlngId, "The workflow's id, see `vantrel list`")->required()->transform(WorkflowId())->type_name("");
  mDatabase.Declare(pobjApp);
  pobjApp.add_flag("--json", mblnJson, "Print one JSON object with everything that is stored, and nothing else");
  pobjApp.footer("Example: vantrel show 3 --json");
}

int ShowCommand::Run() {
  OpenDatabase database(mDatabase.Existing());
  StoredWorkflow stored;
  {
    TransactionScope moment(database.Connection(), Transaction::Read);
    stored.Workflow = database.ReadWorkflow(mlngId);
    database.Do([&] { stored.Run = CountStoredRun(database.Connection(), mlngId); });
  }
  if (mblnJson) {
    std::cout << StoredWorkflowJson(stored) << '\n';
  } else {
    WriteStoredWorkflow(std::cout, stored);
  }
  return kDone;
}

}  // namespace vantrel

#include "app/commands/ListCommand.h"

#include <iostream>

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"
#include "app/database/OpenDatabase.h"
#include "app/show/Listing.h"

namespace vantrel {

void ListCommand::Declare(CLI::App& pobjApp) {
  mDatabase.Declare(pobjApp);
  pobjApp.add_flag("--json", mblnJson, "Print one JSON object and nothing else");
  pobjApp.footer("Example: vantrel list --db nets.db");
}

int ListCommand::Run() {
  OpenDatabase database(mDatabase.Existing());
  std::vector<WorkflowListing> workflows;
  database.Do([&] { workflows = ListWorkflows(database.Connection()); });
  if (mblnJson) {
    std::cout << ListingJson(workflows) << '\n';
  } else if (workflows.empty()) {
    std::cout << database.Name() << " holds no workflow.\n";
  } else {
    WriteListing(std::cout, workflows);
  }
  return kDone;
}

}  // namespace vantrel

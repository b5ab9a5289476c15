#include "app/commands/CopyCommand.h"

#include <iostream>

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"
#include "app/database/AsNew.h"
#include "app/database/OpenDatabase.h"
#include "app/database/WorkflowId.h"

namespace vantrel {

void CopyCommand::Declare(CLI::App& pobjApp) {
  pobjApp.add_option("ID", mlngId, "The workflow's id, see `vantrel list`")->required()->transform(WorkflowId())->type_name("");
  pobjApp.add_option("--to", mTarget, "The database that gets the copy: a file, or postgresql://USER@HOST/NAME")
      ->required()
      ->type_name("ADDRESS");
  mDatabase.Declare(pobjApp);
  pobjApp.footer(
      "Embedded workflows and token property definitions go with it, and all get new ids; cases and tokens are not copied.\n"
      "Prints the copy's id. Example: vantrel copy 3 --db nets.db --to postgresql://me@server/nets");
}

int CopyCommand::Run() {
  OpenDatabase source(mDatabase.Existing());
  OpenDatabase target{DatabaseAddress(mTarget)};
  const auto workflow = source.ReadWorkflow(mlngId);
  for (const std::string& line : MakeNew(workflow)) std::cerr << "vantrel: " << source.Name() << ": " << line << '\n';
  target.Save(workflow);
  std::cout << workflow->RecId << '\n';
  return kDone;
}

}  // namespace vantrel

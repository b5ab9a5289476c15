#include "app/commands/ExportCommand.h"

#include <iostream>

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"
#include "app/database/OpenDatabase.h"
#include "app/database/WorkflowId.h"
#include "interchange/PnmlExport.h"

namespace vantrel {

void ExportCommand::Declare(CLI::App& pobjApp) {
  pobjApp.add_option("ID", mlngId, "The workflow's id, see `vantrel list`")->required()->transform(WorkflowId())->type_name("");
  pobjApp.add_option("OUT.pnml", mFile, "The file to write; an existing one is replaced; - is standard output")->required()->type_name("");
  mDatabase.Declare(pobjApp);
  pobjApp.footer("Example: vantrel export 3 order-handling.pnml");
}

int ExportCommand::Run() {
  OpenDatabase database(mDatabase.Existing());
  const auto workflow = database.ReadWorkflow(mlngId);
  for (const std::string& arc : ArcsLeftOut(*workflow)) std::cerr << "vantrel: " << database.Name() << ": left out: " << arc << '\n';
  PnmlExportOptions options;
  options.NetId = "workflow" + std::to_string(mlngId);
  if (mFile == "-") {
    std::cout << ToPnml(*workflow, options);
  } else {
    ExportPnml(*workflow, mFile, options);
  }
  return kDone;
}

}  // namespace vantrel

#include "app/commands/DesignCommand.h"

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"
#include "app/commands/NetArgument.h"
#include "app/window/DesignerProgram.h"
#include "app/window/Display.h"

namespace vantrel {

void DesignCommand::Declare(CLI::App& pobjApp) {
  pobjApp.add_option("NET", mstrNet, "The id of a stored workflow, or a PNML file; without it the one that was open last")->type_name("");
  mDatabase.Declare(pobjApp);
  pobjApp.add_option("--net", mFileOptions.NetId, "Id of the net in a file with several; without it the first one")->type_name("ID");
  pobjApp.add_flag("--skip-unsupported", mFileOptions.SkipUnsupported,
                   "Leave out arcs that place/transition nets do not have, instead of refusing the file");
  pobjApp.footer(
      "The window opens, saves and lists the workflows of the database; F1 tells what mouse and keys do.\n"
      "Examples: vantrel design\n"
      "          vantrel design 3 --db nets.db\n"
      "          vantrel design order-handling.pnml");
}

int DesignCommand::Run() {
  DisplayQuestion display;
  DesignRequest request{mDatabase.Existing(), 0, {}, mFileOptions};
  const auto id = StoredId(mstrNet);
  if (id) request.Id = *id;
  if (!id) request.File = mstrNet;
  return RunDesigner(request, display);
}

}  // namespace vantrel

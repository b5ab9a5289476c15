#include "app/commands/DrawCommand.h"

#include <charconv>
#include <cmath>
#include <iostream>
#include <stdexcept>
#include <system_error>

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"
#include "app/Lines.h"
#include "app/commands/NetArgument.h"
#include "app/database/OpenDatabase.h"
#include "app/draw/ChartFile.h"
#include "app/draw/OffscreenApplication.h"
#include "interchange/PnmlImport.h"

namespace vantrel {

namespace {

// CLI11 itself would accept "nan".
CLI::Validator NumberAboveZero() {
  const auto check = [](const std::string& pstrText) -> std::string {
    double number = 0;
    const char* const end = pstrText.data() + pstrText.size();
    const auto [stopped, fault] = std::from_chars(pstrText.data(), end, number);
    if (fault == std::errc() && stopped == end && std::isfinite(number) && number > 0) return {};
    return '"' + pstrText + "\" is not a number above 0";
  };
  return CLI::Validator(check, "");
}

}  // namespace

void DrawCommand::Declare(CLI::App& pobjApp) {
  pobjApp.add_option("NET", mNet, "A file with the net, or the id of a stored workflow")->required()->type_name("");
  pobjApp.add_option("OUT", mstrPicture, "The picture to write, OUT.png, OUT.svg or OUT.pdf; an existing file is replaced")
      ->required()
      ->type_name("");
  pobjApp.add_option("--zoom", mdblZoom, "Size of the picture: 1 is 96 pixels an inch, 2 is twice as wide and twice as high")
      ->check(NumberAboveZero())
      ->type_name("Z")
      ->capture_default_str();
  pobjApp.add_option("--net", mFileOptions.NetId, "Id of the net in a file with several; without it the first one")->type_name("ID");
  pobjApp.add_flag("--skip-unsupported", mFileOptions.SkipUnsupported,
                   "Leave out arcs that place/transition nets do not have and name them, instead of refusing the file");
  mDatabase.Declare(pobjApp);
  pobjApp.footer(
      "The picture shows the chart of the net itself, not those of its sub-processes. No display is needed.\n"
      "Examples: vantrel draw order-handling.pnml order-handling.svg\n"
      "          vantrel draw 3 chart.png --zoom 2 --db nets.db");
}

int DrawCommand::Run() {
  if (const auto id = StoredId(mNet)) {
    DrawStored(*id);
  } else {
    DrawFile();
  }
  return kDone;
}

void DrawCommand::DrawStored(std::int32_t plngId) const {
  if (!mFileOptions.NetId.empty() || mFileOptions.SkipUnsupported) {
    throw std::runtime_error("--net and --skip-unsupported are for files, not for workflow " + mNet);
  }
  OpenDatabase database(mDatabase.Existing());
  Draw(database.ReadWorkflow(plngId));
}

void DrawCommand::DrawFile() const {
  if (mDatabase.IsGiven()) throw std::runtime_error(mNet + ": --db needs the id of a stored workflow, not a file");
  const LoadedNet net = ImportPnml(mNet, mFileOptions);
  Draw(net.Workflow);
  for (const std::string& arc : net.Skipped) std::cerr << "vantrel: " << OnOneLine(mNet) << ": left out: " << OnOneLine(arc) << '\n';
}

void DrawCommand::Draw(const std::shared_ptr<Workflow>& pobjWorkflow) const {
  const OffscreenApplication application;
  DrawWorkflow(pobjWorkflow, mstrPicture, mdblZoom);
}

}  // namespace vantrel

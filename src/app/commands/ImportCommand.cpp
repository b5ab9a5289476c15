#include "app/commands/ImportCommand.h"

#include <algorithm>
#include <iostream>
#include <optional>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "app/CommandLine.h"
#include "app/Interrupt.h"
#include "app/Lines.h"
#include "app/ProgressLine.h"
#include "interchange/PnmlError.h"

namespace vantrel {

namespace {

// Most texts of failures begin with the file's name.
void TellOf(const std::string& pstrFile, const std::string& pstrWhat) {
  const bool named = pstrWhat.starts_with(pstrFile);
  std::cerr << "vantrel: " << OnOneLine(named ? pstrWhat : pstrFile + ": " + pstrWhat) << '\n';
}

}  // namespace

void ImportCommand::Declare(CLI::App& pobjApp) {
  DeclareFiles(pobjApp);
  mDatabase.Declare(pobjApp);
  pobjApp.add_flag("--json", mblnJson, "Print one JSON object and nothing else");
  pobjApp.footer(
      "Each net is stored as a whole or not at all. A file that cannot be stored is named, the others are stored all the same, and the\n"
      "exit status is 2. Example: vantrel import order-handling.pnml nets/ --db nets.db");
}

void ImportCommand::DeclareFiles(CLI::App& pobjApp) {
  pobjApp.add_option("NET.pnml", mcolPaths, "Files with nets, or folders: all files NAME.pnml in them")->required()->type_name("");
  pobjApp.add_option("--net", mFileOptions.NetId, "Id of the net in files with several; without it the first one")->type_name("ID");
  pobjApp.add_flag("--skip-unsupported", mFileOptions.SkipUnsupported,
                   "Leave out arcs that place/transition nets do not have and name them, instead of refusing the file");
}

int ImportCommand::Run() {
  const auto files = NetFilesOf(mcolPaths);
  OpenDatabase database(mDatabase.Existing());
  const auto outcomes = ImportAll(database, files);
  if (mblnJson) std::cout << ImportJson(outcomes) << '\n';
  if (std::any_of(outcomes.begin(), outcomes.end(), [](const auto& outcome) { return outcome.Id == 0; })) return kBadInput;
  return outcomes.size() == files.size() ? kDone : kNotFinished;
}

std::vector<ImportOutcome> ImportCommand::ImportAll(OpenDatabase& pobjDatabase, const std::vector<NetFile>& pcolFiles) const {
  const Interrupt interrupt;
  std::optional<ProgressLine> progress;  // where the lines of the nets themselves do not show it
  if (isatty(STDERR_FILENO) == 1 && isatty(STDOUT_FILENO) != 1) progress.emplace(std::cerr);
  std::vector<ImportOutcome> outcomes;
  for (const NetFile& file : pcolFiles) {
    const std::string done = std::to_string(outcomes.size()) + " of " + std::to_string(pcolFiles.size()) + " files";
    if (interrupt.Came()) {
      std::cerr << "vantrel: interrupted after " << done << '\n';
      break;
    }
    if (progress && progress->IsDue()) progress->Show(done);
    if (file.Failure.empty()) {
      outcomes.push_back(ImportNet(pobjDatabase, file.Path, mFileOptions));
    } else {
      outcomes.emplace_back().File = file.Path;
      outcomes.back().Failure = file.Failure;
    }
    Tell(outcomes.back());
  }
  return outcomes;
}

void ImportCommand::Tell(const ImportOutcome& pobjOutcome) const {
  for (const std::string& note : pobjOutcome.Notes) TellOf(pobjOutcome.File, note);
  if (pobjOutcome.Id == 0) {
    TellOf(pobjOutcome.File, pobjOutcome.Failure);
  } else if (!mblnJson) {
    std::cout << pobjOutcome.Id << "  " << OnOneLine(pobjOutcome.File) << "  " << QuotedForMessage(pobjOutcome.NetName) << '\n';
  }
}

}  // namespace vantrel

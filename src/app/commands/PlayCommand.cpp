#include "app/commands/PlayCommand.h"

#include <iostream>
#include <limits>
#include <optional>
#include <stdexcept>
#include <utility>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "app/CommandLine.h"
#include "app/Interrupt.h"
#include "app/WholeNumber.h"
#include "app/commands/NetArgument.h"
#include "app/database/OpenDatabase.h"
#include "app/play/DatabaseStore.h"
#include "app/play/Player.h"
#include "app/play/Progress.h"
#include "app/play/StoredNet.h"

namespace vantrel {

namespace {

Account Play(LoadedNet pobjNet, const PlayOptions& pobjOptions, PlayStore* pobjStore = nullptr) {
  const Interrupt interrupt;
  std::optional<Progress> progress;
  if (isatty(STDERR_FILENO) == 1) progress.emplace(std::cerr);
  const auto watch = [&](const PlayCounts& pobjCounts) {
    if (progress) progress->Show(pobjCounts);
    return !interrupt.Came();
  };
  return Player(std::move(pobjNet), pobjOptions, watch, pobjStore).Play();
}

/// "no place is WITHOUT" or "3 places are WITHOUT".
std::string CountOf(std::int32_t plngPlaces, const std::string& pstrWithout) {
  return (plngPlaces == 0 ? std::string("no place is ") : std::to_string(plngPlaces) + " places are ") + pstrWithout;
}

}  // namespace

void PlayCommand::Declare(CLI::App& pobjApp) {
  pobjApp.add_option("NET", mNet, "A file with the net, or the id of a stored workflow")->required()->type_name("");
  DeclareRun(pobjApp);
  DeclareFile(pobjApp);
  DeclareDatabase(pobjApp);
  DeclareOutput(pobjApp);
  pobjApp.footer(
      "Exit status: 0 if every started case finished and nothing failed, else 3; 2 for options and files that cannot be used.\n"
      "Ctrl-C ends the run with an account of what happened so far.\n"
      "Examples: vantrel play order-handling.pnml --cases 10 --pick random\n"
      "          vantrel play 3 --db nets.db --cases 1000 --save");
}

void PlayCommand::DeclareRun(CLI::App& pobjApp) {
  auto* cases =
      pobjApp.add_option("--cases", mOptions.Cases, "Start so many cases before the first firing, each with a token in the start place")
          ->transform(WholeNumber(1, std::numeric_limits<std::int32_t>::max()))
          ->each([this](const std::string&) { mblnCasesGiven = true; })
          ->type_name("N")
          ->capture_default_str();
  pobjApp.add_flag("--marking", mOptions.FromMarking, "Start with the initial marking of the file instead of cases")->excludes(cases);
  pobjApp.add_option("--pick", mPick, "Which enabled transition fires next: the one enabled first, or any")
      ->check(CLI::IsMember({"first", "random"}).description(""))
      ->type_name("first|random")
      ->capture_default_str();
  pobjApp.add_option("--seed", mOptions.Seed, "Seed of --pick random: the same seed gives the same run")
      ->transform(WholeNumber(0, std::numeric_limits<std::uint64_t>::max()))
      ->type_name("S")
      ->capture_default_str();
  pobjApp
      .add_option("--max-firings", mOptions.MaxFirings,
                  "Stop after so many firings; automatic transitions that a firing sets off count, but are not stopped")
      ->transform(WholeNumber(0, std::numeric_limits<std::int64_t>::max()))
      ->type_name("M")
      ->capture_default_str();
  pobjApp.add_flag("--automatic", mOptions.Automatic, "Make every transition automatic: it fires as soon as it is enabled");
  pobjApp.add_flag("--case-tracking", mOptions.CaseTracking, "Let a firing take the tokens of one case only");
  pobjApp.add_flag("--keep-history", mOptions.KeepHistory, "Leave the tokens of finished cases in the end place");
}

void PlayCommand::DeclareFile(CLI::App& pobjApp) {
  pobjApp.add_option("--net", mFileOptions.NetId, "Id of the net in a file with several; without it the first one")->type_name("ID");
  pobjApp.add_flag("--skip-unsupported", mFileOptions.SkipUnsupported,
                   "Leave out arcs that place/transition nets do not have and name them, instead of refusing the file");
}

void PlayCommand::DeclareDatabase(CLI::App& pobjApp) {
  mDatabase.Declare(pobjApp);
  pobjApp.add_flag("--save", mblnSave,
                   "Store cases and tokens in the database after every thousand firings or started cases, and every second");
  pobjApp.add_flag("--resume", mOptions.Resume,
                   "Go on from the stored cases and tokens, and go on storing; starts new cases only with --cases");
}

void PlayCommand::DeclareOutput(CLI::App& pobjApp) {
  pobjApp.add_flag("--trace", mblnTrace, "List every firing");
  pobjApp.add_flag("--json", mblnJson, "Print one JSON object, trace included, and nothing else");
}

int PlayCommand::Run() {
  mOptions.Pick = mPick == "random" ? Pick::Random : Pick::First;
  mOptions.KeepTrace = mblnTrace || mblnJson;

  const auto id = StoredId(mNet);
  const Account account = id ? PlayStored(*id) : PlayFile();
  if (mblnJson) {
    std::cout << ToJson(account) << '\n';
  } else {
    WriteText(std::cout, account);
  }
  return account.IsFinished() ? kDone : kNotFinished;
}

void PlayCommand::CheckFileOptions() const {
  if (mblnSave || mOptions.Resume) throw std::runtime_error(mNet + ": --save and --resume need the id of a stored workflow, not a file");
  if (mDatabase.IsGiven()) throw std::runtime_error(mNet + ": --db needs the id of a stored workflow, not a file");
}

void PlayCommand::CheckStoredOptions() const {
  if (mOptions.FromMarking) throw std::runtime_error("--marking: a database keeps no initial marking; play a file");
  if (!mFileOptions.NetId.empty() || mFileOptions.SkipUnsupported) {
    throw std::runtime_error("--net and --skip-unsupported are for files, not for workflow " + mNet);
  }
}

Account PlayCommand::PlayFile() {
  CheckFileOptions();
  mSource = mNet;
  LoadedNet net = ImportPnml(mNet, mFileOptions);
  for (const std::string& arc : net.Skipped) std::cerr << "vantrel: " << mNet << ": left out: " << arc << '\n';
  CheckEnds(net);
  return Play(std::move(net), mOptions);
}

Account PlayCommand::PlayStored(std::int32_t plngId) {
  CheckStoredOptions();
  OpenDatabase database(mDatabase.Existing());
  LoadedNet net = ReadStoredNet(database, plngId);
  mSource = database.Name() + ": workflow " + net.Id;
  CheckEnds(net);
  if (mOptions.Resume && !mblnCasesGiven) mOptions.Cases = 0;
  if (!mblnSave && !mOptions.Resume) return Play(std::move(net), mOptions);
  DatabaseStore store(database, net.Workflow);
  return Play(std::move(net), mOptions, &store);
}

void PlayCommand::CheckEnds(const LoadedNet& pobjNet) const {
  if (!mOptions.FromMarking && !pobjNet.Workflow->StartPlace) {
    throw std::runtime_error(mSource + ": the net has no start place: " + CountOf(pobjNet.SourcePlaces, "without arcs that lead in"));
  }
  if (!mblnJson && !pobjNet.Workflow->EndPlace()) {
    std::cerr << "vantrel: " << mSource
              << ": the net has no end place, so no case can finish: " << CountOf(pobjNet.SinkPlaces, "without arcs that lead out") << '\n';
  }
}

}  // namespace vantrel

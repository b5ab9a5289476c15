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
#include "app/play/Player.h"
#include "app/play/Progress.h"

namespace vantrel {

namespace {

Account Play(ImportedNet pobjNet, const PlayOptions& pobjOptions) {
  const Interrupt interrupt;
  std::optional<Progress> progress;
  if (isatty(STDERR_FILENO) == 1) progress.emplace(std::cerr);
  const auto watch = [&](const PlayCounts& pobjCounts) {
    if (progress) progress->Show(pobjCounts);
    return !interrupt.Came();
  };
  return Player(std::move(pobjNet), pobjOptions, watch).Play();
}

/// "no place is WITHOUT" or "3 places are WITHOUT".
std::string CountOf(std::int32_t plngPlaces, const std::string& pstrWithout) {
  return (plngPlaces == 0 ? std::string("no place is ") : std::to_string(plngPlaces) + " places are ") + pstrWithout;
}

}  // namespace

void PlayCommand::Declare(CLI::App& pobjApp) {
  pobjApp.add_option("NET.pnml", mFile, "The file with the net")->required();
  DeclareRun(pobjApp);
  DeclareFile(pobjApp);
  DeclareOutput(pobjApp);
  pobjApp.footer(
      "Exit status: 0 when every started case finished and nothing failed, 3 when not, 2 for options and files that cannot be used.\n"
      "Ctrl-C ends the run with an account of what happened so far.");
}

void PlayCommand::DeclareRun(CLI::App& pobjApp) {
  auto* cases = pobjApp.add_option("--cases", mOptions.Cases, "Cases to start before the first firing: a token each in the start place")
                    ->transform(WholeNumber(1, std::numeric_limits<std::int32_t>::max()))
                    ->type_name("N")
                    ->capture_default_str();
  pobjApp.add_flag("--marking", mOptions.FromMarking, "Start with the initial marking of the file instead of cases")->excludes(cases);
  pobjApp.add_option("--pick", mPick, "Which enabled transition fires next: the one enabled first, or any")
      ->check(CLI::IsMember({"first", "random"}).description(""))
      ->type_name("first|random")
      ->capture_default_str();
  pobjApp.add_option("--seed", mOptions.Seed, "What --pick random draws from: the same seed, the same run")
      ->transform(WholeNumber(0, std::numeric_limits<std::uint64_t>::max()))
      ->type_name("S")
      ->capture_default_str();
  pobjApp
      .add_option("--max-firings", mOptions.MaxFirings,
                  "Stop after so many firings; automatic transitions that one firing sets off are counted but not cut short")
      ->transform(WholeNumber(0, std::numeric_limits<std::int64_t>::max()))
      ->type_name("M")
      ->capture_default_str();
  pobjApp.add_flag("--automatic", mOptions.Automatic, "Make every transition automatic: it fires as soon as it is enabled");
  pobjApp.add_flag("--case-tracking", mOptions.CaseTracking, "Let a firing take tokens of one case only");
  pobjApp.add_flag("--keep-history", mOptions.KeepHistory, "Leave the tokens of finished cases in the end place");
}

void PlayCommand::DeclareFile(CLI::App& pobjApp) {
  pobjApp.add_option("--net", mFileOptions.NetId, "Id of the net in a file with several; without it the first one")->type_name("ID");
  pobjApp.add_flag("--skip-unsupported", mFileOptions.SkipUnsupported,
                   "Leave out arcs that place/transition nets do not have and name them, instead of refusing the file");
}

void PlayCommand::DeclareOutput(CLI::App& pobjApp) {
  pobjApp.add_flag("--trace", mblnTrace, "List every firing");
  pobjApp.add_flag("--json", mblnJson, "Print one JSON object, trace included, and nothing else");
}

int PlayCommand::Run() {
  ImportedNet net = ImportPnml(mFile, mFileOptions);
  for (const std::string& arc : net.Skipped) std::cerr << "vantrel: " << mFile << ": left out: " << arc << '\n';
  CheckEnds(net);
  mOptions.Pick = mPick == "random" ? Pick::Random : Pick::First;
  mOptions.KeepTrace = mblnTrace || mblnJson;

  const Account account = Play(std::move(net), mOptions);
  if (mblnJson) {
    std::cout << ToJson(account) << '\n';
  } else {
    WriteText(std::cout, account);
  }
  return account.IsFinished() ? kDone : kNotFinished;
}

void PlayCommand::CheckEnds(const ImportedNet& pobjNet) const {
  if (!mOptions.FromMarking && !pobjNet.Workflow->StartPlace) {
    throw std::runtime_error(mFile + ": the net has no start place: " + CountOf(pobjNet.SourcePlaces, "without arcs that lead in"));
  }
  if (!mblnJson && !pobjNet.Workflow->EndPlace()) {
    std::cerr << "vantrel: " << mFile
              << ": the net has no end place, so no case can finish: " << CountOf(pobjNet.SinkPlaces, "without arcs that lead out") << '\n';
  }
}

}  // namespace vantrel

#include "app/CommandLine.h"

#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <vantrel/version.h>

#include "app/Lines.h"
#include "app/commands/CopyCommand.h"
#include "app/commands/DbCommand.h"
#include "app/commands/DeleteCommand.h"
#include "app/commands/ExportCommand.h"
#include "app/commands/ImportCommand.h"
#include "app/commands/ListCommand.h"
#include "app/commands/PlayCommand.h"
#include "app/commands/SampleCommand.h"
#include "app/commands/ShowCommand.h"
#include "util/MsgBox.h"
#if VANTREL_HAS_QT
#include "app/commands/DesignCommand.h"
#include "app/commands/DrawCommand.h"
#endif

namespace vantrel {

namespace {

using Commands = std::vector<std::unique_ptr<Command>>;

Commands AllCommands() {
  Commands commands;
#if VANTREL_HAS_QT
  commands.push_back(std::make_unique<DesignCommand>());
#endif
  commands.push_back(std::make_unique<PlayCommand>());
  commands.push_back(std::make_unique<ImportCommand>());
  commands.push_back(std::make_unique<ListCommand>());
  commands.push_back(std::make_unique<ShowCommand>());
  commands.push_back(std::make_unique<ExportCommand>());
#if VANTREL_HAS_QT
  commands.push_back(std::make_unique<DrawCommand>());
#endif
  commands.push_back(std::make_unique<DeleteCommand>());
  commands.push_back(std::make_unique<CopyCommand>());
  commands.push_back(std::make_unique<DbCommand>());
  return commands;
}

int RunChosen(const CLI::App& pobjApp, const Commands& pcolCommands) {
  for (const auto& command : pcolCommands) {
    if (pobjApp.got_subcommand(command->Name())) return command->Run();
  }
  return SampleCommand().Run();
}

int Fail(const std::string& pstrWhat) {
  std::cerr << "vantrel: " << OnOneLine(pstrWhat) << '\n';
  return kBadInput;
}

int ParseAndRun(CLI::App& pobjApp, const Commands& pcolCommands, int plngCount, const char* const* pstrArguments) {
  try {
    pobjApp.parse(plngCount, pstrArguments);
  } catch (const CLI::Success& request) {  // --help, --version
    return pobjApp.exit(request);
  }
  return RunChosen(pobjApp, pcolCommands);
}

}  // namespace

int RunCommandLine(int plngCount, const char* const* pstrArguments) {
  const MsgBoxScope lines([](const std::string& pstrText, MsgBoxButtons, const std::string&) {
    std::cerr << "vantrel: " << OnOneLine(pstrText) << '\n';
    return vntOK;
  });
  try {
    CLI::App app("Vantrel draws workflow nets, stores them and plays them. Without a command it opens its window.", "vantrel");
    app.set_version_flag("--version", "vantrel " VANTREL_VERSION, "Print the version and exit");
    app.require_subcommand(0, 1);
    const Commands commands = AllCommands();
    for (const auto& command : commands) command->Declare(*app.add_subcommand(command->Name(), command->Summary()));

    const int status = ParseAndRun(app, commands, plngCount, pstrArguments);
    if (!std::cout.flush()) throw std::runtime_error("cannot write to standard output");
    return status;
  } catch (const std::bad_alloc&) {
    std::cerr << "vantrel: not enough memory\n";
    return 2;
  } catch (const std::exception& error) {
    return Fail(error.what());
  }
}

}  // namespace vantrel

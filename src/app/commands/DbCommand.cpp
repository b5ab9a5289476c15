#include "app/commands/DbCommand.h"

#include <iostream>
#include <stdexcept>

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"
#include "app/database/DefaultDatabase.h"
#include "app/database/Engines.h"
#include "util/Error.h"

namespace vantrel {

void DbCommand::Declare(CLI::App& pobjApp) {
  auto* create = pobjApp.add_subcommand("create", "Make the tables, and the file where there is none; a database that has them is refused");
  mDatabase.Declare(*create);
  create->footer(
      "Examples: vantrel db create --db nets.db\n"
      "          vantrel db create --db postgresql://me@server/nets   (the database `nets` must exist on the server)");
  pobjApp.require_subcommand(1);
  pobjApp.footer("Example: vantrel db create --db nets.db");
}

int DbCommand::Run() {
  const DatabaseAddress address = mDatabase.Address();
  if (!mDatabase.IsGiven()) MakeDefaultFolder(address.Text());
  try {
    CreateDatabase(address);
  } catch (const Error& error) {
    const bool named = error.Description.find(address.Shown()) != std::string::npos;
    throw std::runtime_error(named ? error.Description : address.Shown() + ": " + error.Description);
  }
  std::cout << "Made the tables in " << address.Shown() << ".\n";
  return kDone;
}

}  // namespace vantrel

#include "app/commands/DbCommand.h"

#include <iostream>
#include <stdexcept>

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"
#include "app/database/DefaultDatabase.h"
#include "app/database/Engines.h"
#include "app/database/OpenDatabase.h"
#include "app/database/SchemaVersion.h"
#include "util/Error.h"

namespace vantrel {

namespace {

// Errors of the engines name the database, but not all.
template <class Work>
void Named(const DatabaseAddress& pobjAddress, Work&& pWork) {
  try {
    pWork();
  } catch (const Error& error) {
    const bool isNamed = error.Description.find(pobjAddress.Shown()) != std::string::npos;
    throw std::runtime_error(isNamed ? error.Description : pobjAddress.Shown() + ": " + error.Description);
  }
}

}  // namespace

void DbCommand::Declare(CLI::App& pobjApp) {
  auto* create = pobjApp.add_subcommand("create", "Make the tables, and the file if there is none; refuse a database that has them");
  mDatabase.Declare(*create);
  create->footer(
      "Examples: vantrel db create --db nets.db\n"
      "          vantrel db create --db postgresql://me@server/nets   (the database `nets` must exist on the server)");
  mobjUpgrade = pobjApp.add_subcommand("upgrade", "Bring the tables of an older version of this program up to date, all or nothing");
  mDatabase.Declare(*mobjUpgrade);
  mobjUpgrade->footer("Example: vantrel db upgrade --db nets.db");
  pobjApp.require_subcommand(1);
  pobjApp.footer("Example: vantrel db create --db nets.db");
}

int DbCommand::Run() {
  const DatabaseAddress address = mDatabase.Address();
  Named(address, [&] { mobjUpgrade->parsed() ? Upgrade(address) : Create(address); });
  return kDone;
}

void DbCommand::Create(const DatabaseAddress& pobjAddress) const {
  if (!mDatabase.IsGiven()) MakeDefaultFolder(pobjAddress.Text());
  CreateDatabase(pobjAddress);
  std::cout << "Made the tables in " << pobjAddress.Shown() << ".\n";
}

void DbCommand::Upgrade(const DatabaseAddress& pobjAddress) {
  const std::int32_t before = OpenDatabase::VersionToUpgrade(pobjAddress);
  if (before == kSchemaVersion) {
    std::cout << pobjAddress.Shown() << " is up to date.\n";
    return;
  }
  UpgradeDatabase(pobjAddress);
  std::cout << "Brought the tables in " << pobjAddress.Shown() << " from version " << before << " to version " << kSchemaVersion << ".\n";
}

}  // namespace vantrel

#include "app/database/DatabaseOption.h"

#include <CLI/CLI.hpp>

#include "app/database/DefaultDatabase.h"

namespace vantrel {

void DatabaseOption::Declare(CLI::App& pobjApp) {
  pobjApp
      .add_option("--db", mstrAddress,
                  "The database: a file, or postgresql://USER@HOST/NAME; without it vantrel/vantrel.db in your data folder, which is made "
                  "when it is first used")
      ->check([](const std::string& pstrText) { return std::string(pstrText.empty() ? "--db: an empty name is no database" : ""); })
      ->type_name("ADDRESS");
}

DatabaseAddress DatabaseOption::Address() const { return DatabaseAddress(IsGiven() ? mstrAddress : DefaultDatabasePath()); }

DatabaseAddress DatabaseOption::Existing() const {
  DatabaseAddress address = Address();
  if (!IsGiven()) MakeDefaultDatabase(address.Text());
  return address;
}

}  // namespace vantrel

#pragma once

#include <string>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"

namespace vantrel {

/// `vantrel db`: what concerns a database as a whole. `vantrel db create` makes its tables, `vantrel db upgrade` brings those of an
/// older program up to date.
class DbCommand final : public Command {
 public:
  std::string Name() const override { return "db"; }
  std::string Summary() const override { return "Make a database, or bring one up to date"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  void Create(const DatabaseAddress& pobjAddress) const;
  static void Upgrade(const DatabaseAddress& pobjAddress);

  DatabaseOption mDatabase;
  CLI::App* mobjUpgrade = nullptr;
};

}  // namespace vantrel

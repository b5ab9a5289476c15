#pragma once

#include <string>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"

namespace vantrel {

/// `vantrel db`: what concerns a database as a whole; `vantrel db create` makes its tables.
class DbCommand final : public Command {
 public:
  std::string Name() const override { return "db"; }
  std::string Summary() const override { return "Make a database"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  DatabaseOption mDatabase;
};

}  // namespace vantrel

#pragma once

#include <cstdint>
#include <string>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"

namespace vantrel {

/// `vantrel export`: a stored workflow as a PNML file.
class ExportCommand final : public Command {
 public:
  std::string Name() const override { return "export"; }
  std::string Summary() const override { return "Write a workflow of a database to a PNML file"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  DatabaseOption mDatabase;
  std::int32_t mlngId = 0;
  std::string mFile;
};

}  // namespace vantrel

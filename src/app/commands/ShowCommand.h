#pragma once

#include <cstdint>
#include <string>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"

namespace vantrel {

/// `vantrel show`: one stored workflow in full.
class ShowCommand final : public Command {
 public:
  std::string Name() const override { return "show"; }
  std::string Summary() const override { return "Show a workflow of a database with all that is stored of it"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  DatabaseOption mDatabase;
  std::int32_t mlngId = 0;
  bool mblnJson = false;
};

}  // namespace vantrel

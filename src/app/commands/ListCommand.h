#pragma once

#include <string>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"

namespace vantrel {

/// `vantrel list`: what a database holds, a line a workflow.
class ListCommand final : public Command {
 public:
  std::string Name() const override { return "list"; }
  std::string Summary() const override { return "List the workflows of a database"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  DatabaseOption mDatabase;
  bool mblnJson = false;
};

}  // namespace vantrel

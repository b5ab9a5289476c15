#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"

namespace vantrel {

/// `vantrel delete`: removes workflows, all of those named or none.
class DeleteCommand final : public Command {
 public:
  std::string Name() const override { return "delete"; }
  std::string Summary() const override { return "Delete workflows of a database"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  DatabaseOption mDatabase;
  std::vector<std::int32_t> mcolIds;
  bool mblnForce = false, mblnEmbedded = false;
};

}  // namespace vantrel

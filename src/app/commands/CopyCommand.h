#pragma once

#include <cstdint>
#include <string>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"

namespace vantrel {

/// `vantrel copy`: a workflow from one database into another, whatever their engines.
class CopyCommand final : public Command {
 public:
  std::string Name() const override { return "copy"; }
  std::string Summary() const override { return "Copy a workflow to another database"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  DatabaseOption mDatabase;
  std::int32_t mlngId = 0;
  std::string mTarget;
};

}  // namespace vantrel

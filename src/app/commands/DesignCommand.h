#pragma once

#include <string>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"
#include "interchange/PnmlReader.h"

namespace vantrel {

/// `vantrel design`: the designer in a window.
class DesignCommand final : public Command {
 public:
  std::string Name() const override { return "design"; }
  std::string Summary() const override { return "Draw and edit workflows in a window"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  DatabaseOption mDatabase;
  PnmlOptions mFileOptions;
  std::string mstrNet;
};

}  // namespace vantrel

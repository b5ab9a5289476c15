#pragma once

#include <string>

#include "app/commands/Command.h"
#include "app/play/PlayOptions.h"
#include "interchange/PnmlImport.h"

namespace vantrel {

/// `vantrel play`: reads a net, plays it without a user and says what happened.
class PlayCommand final : public Command {
 public:
  std::string Name() const override { return "play"; }
  std::string Summary() const override { return "Play a net from a PNML file and say what happened"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  void DeclareRun(CLI::App& pobjApp);
  void DeclareFile(CLI::App& pobjApp);
  void DeclareOutput(CLI::App& pobjApp);
  void CheckEnds(const ImportedNet& pobjNet) const;

  std::string mFile;
  PnmlOptions mFileOptions;
  PlayOptions mOptions;
  std::string mPick = "first";
  bool mblnTrace = false, mblnJson = false;
};

}  // namespace vantrel

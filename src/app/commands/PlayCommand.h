#pragma once

#include <cstdint>
#include <string>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"
#include "app/play/Account.h"
#include "app/play/PlayOptions.h"
#include "interchange/PnmlImport.h"

namespace vantrel {

/// `vantrel play`: reads a net from a file or a database, plays it without a user and says what happened.
class PlayCommand final : public Command {
 public:
  std::string Name() const override { return "play"; }
  std::string Summary() const override { return "Play a net from a PNML file or a database and say what happened"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  void DeclareRun(CLI::App& pobjApp);
  void DeclareFile(CLI::App& pobjApp);
  void DeclareDatabase(CLI::App& pobjApp);
  void DeclareOutput(CLI::App& pobjApp);
  void CheckFileOptions() const;
  void CheckStoredOptions() const;
  Account PlayFile();
  Account PlayStored(std::int32_t plngId);
  void CheckEnds(const LoadedNet& pobjNet) const;

  std::string mNet;     // as the user named it
  std::string mSource;  // as messages name it
  DatabaseOption mDatabase;
  bool mblnSave = false, mblnCasesGiven = false;
  PnmlOptions mFileOptions;
  PlayOptions mOptions;
  std::string mPick = "first";
  bool mblnTrace = false, mblnJson = false;
};

}  // namespace vantrel

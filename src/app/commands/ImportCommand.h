#pragma once

#include <string>
#include <vector>

#include "app/commands/Command.h"
#include "app/commands/NetFiles.h"
#include "app/database/DatabaseOption.h"
#include "app/database/NetImport.h"

namespace vantrel {

/// `vantrel import`: nets of PNML files become workflows of a database.
class ImportCommand final : public Command {
 public:
  std::string Name() const override { return "import"; }
  std::string Summary() const override { return "Store nets from PNML files in a database"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  void DeclareFiles(CLI::App& pobjApp);
  std::vector<ImportOutcome> ImportAll(OpenDatabase& pobjDatabase, const std::vector<NetFile>& pcolFiles) const;
  void Tell(const ImportOutcome& pobjOutcome) const;

  DatabaseOption mDatabase;
  std::vector<std::string> mcolPaths;
  PnmlOptions mFileOptions;
  bool mblnJson = false;
};

}  // namespace vantrel

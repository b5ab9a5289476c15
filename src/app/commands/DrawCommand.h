#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "app/commands/Command.h"
#include "app/database/DatabaseOption.h"
#include "interchange/PnmlReader.h"

namespace vantrel {

class Workflow;

/// `vantrel draw`: the chart of a net as a picture.
class DrawCommand final : public Command {
 public:
  std::string Name() const override { return "draw"; }
  std::string Summary() const override { return "Draw a net from a PNML file or a database as a picture"; }
  void Declare(CLI::App& pobjApp) override;
  int Run() override;

 private:
  void DrawStored(std::int32_t plngId) const;
  void DrawFile() const;
  void Draw(const std::shared_ptr<Workflow>& pobjWorkflow) const;

  std::string mNet, mstrPicture;
  double mdblZoom = 1;
  DatabaseOption mDatabase;
  PnmlOptions mFileOptions;
};

}  // namespace vantrel

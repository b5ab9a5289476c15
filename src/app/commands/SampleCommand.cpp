#include "app/commands/SampleCommand.h"

#include <iostream>

#include "app/CommandLine.h"
#include "app/SampleNet.h"
#include "app/play/Player.h"

namespace vantrel {

int SampleCommand::Run() {
  PlayOptions options;
  options.KeepTrace = true;
  const PnmlNet net = PnmlReader().ReadBytes(SampleNet(), "order-handling.pnml");
  const Account account = Player(BuildWorkflow(net), options).Play();
  std::cout << "A case of the sample net:\n\n";
  WriteText(std::cout, account);
  std::cout << "\nPlay a net of your own with `vantrel play NET.pnml`; `vantrel --help` lists what else there is.\n";
  return account.IsFinished() ? kDone : kNotFinished;
}

}  // namespace vantrel

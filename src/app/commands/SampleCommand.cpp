#include "app/commands/SampleCommand.h"

#include <filesystem>
#include <iostream>

#include "app/CommandLine.h"
#include "app/SampleNet.h"
#include "app/database/DatabaseOption.h"
#include "app/database/DefaultDatabase.h"
#include "app/database/WorkflowStore.h"
#include "app/play/Player.h"
#include "interchange/PnmlImport.h"
#if VANTREL_HAS_QT
#include "app/draw/ChartFile.h"
#include "app/draw/OffscreenApplication.h"
#include "app/window/DesignerProgram.h"
#include "app/window/Display.h"
#endif

namespace vantrel {

namespace {

constexpr char kSampleName[] = "order-handling";

LoadedNet MakeSample() { return BuildWorkflow(PnmlReader().ReadBytes(SampleNet(), std::string(kSampleName) + ".pnml")); }

}  // namespace

int SampleCommand::Run() {
#if VANTREL_HAS_QT
  DisplayQuestion display;
  const std::string fault = display.WhyNot();
  if (fault.empty()) return Design(display);
  std::cerr << "vantrel: " << fault << '\n';
#endif
  return DrawAndPlay();
}

#if VANTREL_HAS_QT

int SampleCommand::Design(DisplayQuestion& pobjDisplay) {
  const DatabaseAddress address = DatabaseOption().Existing();
  const WorkflowStore store(address);
  DesignRequest request{address, 0, {}, {}};
  if (store.List().empty()) {
    const auto sample = MakeSample().Workflow;
    store.Save(sample);
    request.Id = sample->RecId;
  }
  return RunDesigner(request, pobjDisplay);
}

#endif

int SampleCommand::DrawAndPlay() {
  PlayOptions options;
  options.KeepTrace = true;
  const Account account = Player(MakeSample(), options).Play();
  std::cout << "A case of the sample net:\n\n";
  WriteText(std::cout, account);
#if VANTREL_HAS_QT
  const std::string database = DefaultDatabasePath();
  MakeDefaultFolder(database);
  const auto picture = std::filesystem::path(database).replace_filename(std::string(kSampleName) + ".png").string();
  const OffscreenApplication application;
  DrawWorkflow(MakeSample().Workflow, picture, 2);
  std::cout << "\nA picture of it: " << picture << '\n';
#endif
  std::cout << "\nPlay a net of your own with `vantrel play NET.pnml`, draw it with `vantrel draw NET.pnml OUT.png`; `vantrel --help` "
               "lists what\n"
               "else there is.\n";
  return account.IsFinished() ? kDone : kNotFinished;
}

}  // namespace vantrel

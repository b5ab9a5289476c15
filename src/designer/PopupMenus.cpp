#include "designer/PopupMenus.h"

#include <utility>

#include "designer/StillShown.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

// The question may end the control.
void ReplaceWorkflow(Vantrel& pobjControl) {
  const Ref<Vantrel> control(&pobjControl);
  const auto ask = pobjControl.MayReplaceWorkflow;
  if ((!ask || ask()) && control) control->NewWorkflow();
}

void ToggleLock(Vantrel& pobjControl) {
  pobjControl.LockControls(!pobjControl.LockControls());
  if (const auto workflow = pobjControl.Workflow()) workflow->Dirty(true);
}

// The commands may be replaced while one of them runs.
auto TestCommand(void (TestCommands::*pCommand)(Vantrel&)) {
  return [pCommand](Vantrel& control) {
    const auto commands = control.TestCommands;
    ((*commands).*pCommand)(control);
  };
}

}  // namespace

PopupMenus::PopupMenus(Vantrel& pobjControl) : mobjControl(&pobjControl) {
  BuildDesign();
  BuildTest();
  AddCommand(mRole, "Delete", [](Vantrel& control) {
    const auto dialogs = control.Dialogs;
    dialogs->DeleteRole(control);
  });
}

MenuItem& PopupMenus::AddCommand(MenuItem& pobjMenu, const std::string& pstrCaption, Command pCommand) {
  MenuItem& item = pobjMenu.Add(pstrCaption);
  mcolSubscriptions.push_back(item.OnClick.Connect([control = mobjControl, command = std::move(pCommand)] {
    if (control) ShowErrors([&] { command(*control); });
  }));
  return item;
}

void PopupMenus::BuildDesign() {
  AddCommand(mDesign, "New", ReplaceWorkflow);
  mDesign.Add("Save");
  mDesign.AddSeparator();
  AddCommand(mDesign, "Copy", [](Vantrel& control) { control.Copy(); });
  mPaste = &AddCommand(mDesign, "Paste", [](Vantrel& control) { control.Paste(); });
  AddCommand(mDesign, "Delete", [](Vantrel& control) { control.Delete(); });
  AddCommand(mDesign, "Select All", [](Vantrel& control) { control.SelectAll(); });
  mDesign.AddSeparator();
  AddCommand(mDesign, "Insert Arc", [](Vantrel& control) { control.StartArcInsert(); });
  AddCommand(mDesign, "Insert Place", [](Vantrel& control) { control.InsertPlace(); });
  AddCommand(mDesign, "Insert Transition", [](Vantrel& control) { control.InsertTransition(); });
  mDesign.AddSeparator();
  AddCommand(mDesign, "Insert Elbow", [](Vantrel& control) { control.InsertElbow(); });
  AddCommand(mDesign, "Remove Elbow", [](Vantrel& control) { control.RemoveElbow(); });
  mDesign.AddSeparator();
  AddCommand(mDesign, "Add Notation", [](Vantrel& control) { control.AddNotation(); });
  mDesign.AddSeparator();
  BuildFormat();
  mTestSeparator = &mDesign.AddSeparator();
  mTestCommand = &AddCommand(mDesign, "Test", TestCommand(&TestCommands::StartTest));
  mDesign.AddSeparator();
  AddCommand(mDesign, "Properties", [](Vantrel& control) { control.ShowObjectProperties(); });
}

void PopupMenus::BuildFormat() {
  MenuItem& format = mDesign.Add("Format");
  AddCommand(format, "Align Horizontal", [](Vantrel& control) { control.AlignSelection("Horizontal"); });
  AddCommand(format, "Align Vertical", [](Vantrel& control) { control.AlignSelection("Vertical"); });
  format.AddSeparator();
  AddCommand(format, "Backcolor", [](Vantrel& control) { control.SetBackcolor(); });
  format.AddSeparator();
  mLockControls = &AddCommand(format, "Lock controls", ToggleLock);
}

void PopupMenus::BuildTest() {
  AddCommand(mTest, "Start case", TestCommand(&TestCommands::StartTestCase));
  mTest.AddSeparator();
  AddCommand(mTest, "Add Token", TestCommand(&TestCommands::AddToken));
  AddCommand(mTest, "Remove Token", TestCommand(&TestCommands::RemoveToken));
  mTest.AddSeparator();
  AddCommand(mTest, "Stop Testing", TestCommand(&TestCommands::StopTest));
}

void PopupMenus::ShowTestCommand(bool pblnOn) {
  mTestSeparator->Visible = pblnOn;
  mTestCommand->Visible = pblnOn;
}

void PopupMenus::EnableTestMenu() {
  if (!mobjControl) return;
  const auto place = std::dynamic_pointer_cast<Place>(mobjControl->CurrentObject());
  const auto workflow = mobjControl->Workflow();
  mTest.Find("Start case")->Enabled = !place || (workflow && workflow->StartPlace == place);
  mTest.Find("Add Token")->Enabled = place != nullptr;
  mTest.Find("Remove Token")->Enabled = place && !place->Tokens().IsEmpty();
}

}  // namespace vantrel

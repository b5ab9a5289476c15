#include "designer/Commands.h"

#include <algorithm>
#include <iterator>

#include "designer/CommandRules.h"
#include "designer/ControlScope.h"
#include "designer/Vantrel.h"
#include "designer/gestures/Choosing.h"
#include "designer/gestures/ElementUnder.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

// The control may be destroyed while the question is shown.
void ReplaceWorkflow(Vantrel& pobjControl) {
  const HostTurn turn(pobjControl);
  const auto ask = turn ? pobjControl.MayReplaceWorkflow : nullptr;
  if ((!ask || ask()) && turn) pobjControl.NewWorkflow();
}

// Objects chosen before would be moved and deleted along with it.
template <class T>
void ChooseInserted(Vantrel& pobjControl, const std::shared_ptr<T>& pobjObject) {
  if (!pobjControl.Comfort.ChosenIsSeen) return;
  if (pobjControl.IsInsertingArc()) pobjControl.EndArcInsert();
  ChooseAlone(pobjControl, ElementOf(*pobjObject));
}

template <auto Insert>
void InsertAndChoose(Vantrel& pobjControl) {
  ChooseInserted(pobjControl, Insert(pobjControl));
}

void ToggleLock(Vantrel& pobjControl) {
  pobjControl.LockControls(!pobjControl.LockControls());
  if (const auto workflow = pobjControl.Workflow()) workflow->Dirty(true);
}

// The test commands and the dialogs may be replaced while one of them runs.
template <void (TestCommands::*Command)(Vantrel&)>
void RunTest(Vantrel& pobjControl) {
  const auto commands = pobjControl.TestCommands;
  ((*commands).*Command)(pobjControl);
}

void DeleteRole(Vantrel& pobjControl) {
  const auto dialogs = pobjControl.Dialogs;
  dialogs->DeleteRole(pobjControl);
}

namespace Ids = CommandIds;

constexpr ControlCommand kCommands[] = {
    {Ids::New, "New", "Ctrl+N", IsAlways, ReplaceWorkflow},
    {Ids::Save, "Save", "Ctrl+S", IsAlways, nullptr},
    {Ids::Copy, "Copy", "Ctrl+C", CanCopy, [](Vantrel& control) { control.Copy(); }},
    {Ids::Paste, "Paste", "Ctrl+V", CanPaste, [](Vantrel& control) { control.Paste(); }},
    {Ids::Delete, "Delete", "Del", CanDelete, [](Vantrel& control) { control.Delete(); }},
    {Ids::SelectAll, "Select All", "Ctrl+A", CanSelectAll, [](Vantrel& control) { control.SelectAll(); }},
    {Ids::InsertArc, "Insert Arc", "A", CanInsertArc, [](Vantrel& control) { control.StartArcInsert(); }},
    {Ids::InsertPlace, "Insert Place", "P", CanInsert, InsertAndChoose<[](Vantrel& control) { return control.InsertPlace(); }>},
    {Ids::InsertTransition, "Insert Transition", "T", CanInsert,
     InsertAndChoose<[](Vantrel& control) { return control.InsertTransition(); }>},
    {Ids::InsertElbow, "Insert Elbow", "E", CanInsertElbow, [](Vantrel& control) { control.InsertElbow(); }},
    {Ids::RemoveElbow, "Remove Elbow", "Shift+E", CanRemoveElbow, [](Vantrel& control) { control.RemoveElbow(); }},
    {Ids::AddNotation, "Add Notation", "N", CanInsert, InsertAndChoose<[](Vantrel& control) { return control.AddNotation(); }>},
    {Ids::AlignHorizontal, "Align Horizontal", "H", CanAlign, [](Vantrel& control) { control.AlignSelection("Horizontal"); }},
    {Ids::AlignVertical, "Align Vertical", "V", CanAlign, [](Vantrel& control) { control.AlignSelection("Vertical"); }},
    {Ids::Backcolor, "Backcolor", "", CanInsert, [](Vantrel& control) { control.SetBackcolor(); }},
    {Ids::LockControls, "Lock controls", "", IsAlways, ToggleLock, [](const Vantrel& control) { return control.LockControls(); }},
    {Ids::Test, "Test", "", HasWorkflow, RunTest<&TestCommands::StartTest>},
    {Ids::Properties, "Properties", "Alt+Return", CanShowProperties, [](Vantrel& control) { control.ShowObjectProperties(); }},
    {Ids::StartCase, "Start case", "", CanStartCase, RunTest<&TestCommands::StartTestCase>},
    {Ids::AddToken, "Add Token", "", CanAddToken, RunTest<&TestCommands::AddToken>},
    {Ids::RemoveToken, "Remove Token", "", CanRemoveToken, RunTest<&TestCommands::RemoveToken>},
    {Ids::StopTesting, "Stop Testing", "", IsAlways, RunTest<&TestCommands::StopTest>},
    {Ids::DeleteRole, "Delete", "", IsAlways, DeleteRole},
};

}  // namespace

std::span<const ControlCommand> AllCommands() { return kCommands; }

const ControlCommand* FindCommand(std::string_view pstrId) {
  const auto* const found =
      std::find_if(std::begin(kCommands), std::end(kCommands), [&](const ControlCommand& each) { return each.Id == pstrId; });
  return found == std::end(kCommands) ? nullptr : found;
}

void RunCommand(Vantrel& pobjControl, std::string_view pstrId) {
  const ControlCommand* const command = FindCommand(pstrId);
  if (!command) throw Error(vntErrInvalidCall);
  if (!command->Run || !command->IsEnabled(pobjControl)) return;
  ShowErrors([&] {
    const ControlScope scope(pobjControl);
    command->Run(pobjControl);
  });
}

}  // namespace vantrel

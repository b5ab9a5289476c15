#include "designer/ControlHost.h"

#include "designer/Vantrel.h"

namespace vantrel {

WorkflowReader* ControlHost::VNTRDB() { return mobjControl.VNTRDB.get(); }

Ref<vantrel::Workflow> ControlHost::Workflow() const { return mobjControl.Workflow(); }

float ControlHost::CurrentX() const { return mobjControl.CurrentX; }

float ControlHost::CurrentY() const { return mobjControl.CurrentY; }

void ControlHost::LetGo() { mobjControl.Workflow(nullptr); }

void ControlHost::Dirty(vantrel::Workflow&, bool pblnDirty) { mobjControl.Dirty(pblnDirty); }

void ControlHost::UseMode(UseModeConstant pintMode) { mobjControl.UseMode(pintMode); }

void ControlHost::CurrentControl(const Ref<Element>& pobjElement) { mobjControl.CurrentControl(pobjElement); }

void ControlHost::RunAction(Transition& pobjTransition) {
  const auto commands = mobjControl.TestCommands;
  commands->RunAction(mobjControl, pobjTransition);
}

Ref<Image> ControlHost::NewImage() { return mobjControl.ChartArea.ctlImage.New(); }

Ref<Label> ControlHost::NewLabel() { return mobjControl.ChartArea.ctlLabel.New(); }

Ref<Label> ControlHost::NewCountLabel() { return mobjControl.ChartArea.lblCount.New(); }

Ref<Line> ControlHost::NewLine() { return mobjControl.ChartArea.ctlLine.New(); }

Ref<Image> ControlHost::NewHandle() { return mobjControl.ChartArea.ctlHandle.New(); }

void ControlHost::FrameControl() {
  if (mobjControl.FocusFrame.Visible()) mobjControl.FocusFrame.FrameControl();
}

std::vector<std::string> ControlHost::FontNames() const { return mobjControl.Tools().FontNames(); }

std::optional<std::string> ControlHost::SelectOption(const std::string& pstrPrompt, const std::vector<std::string>& pcolOptions) {
  const auto dialogs = mobjControl.Dialogs;
  return dialogs->SelectOption(pstrPrompt, pcolOptions);
}

void ControlHost::SelectTokens(vantrel::Workflow& pobjWorkflow, Transition& pobjTransition) {
  const auto dialogs = mobjControl.Dialogs;
  dialogs->SelectTokens(pobjWorkflow, pobjTransition);
}

}  // namespace vantrel

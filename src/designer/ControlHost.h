// What gobjVantrel refers to while a control exists.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/DesignerHost.h"

namespace vantrel {

class Vantrel;

/// Passes the model's calls on to its control, and its questions to the control's dialogs.
class ControlHost final : public DesignerHost {
 public:
  explicit ControlHost(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  WorkflowReader* VNTRDB() override;
  Ref<vantrel::Workflow> Workflow() const override;
  float CurrentX() const override;
  float CurrentY() const override;
  void LetGo() override;
  void Dirty(vantrel::Workflow& pobjWorkflow, bool pblnDirty) override;
  void UseMode(UseModeConstant pintMode) override;
  void CurrentControl(const Ref<Element>& pobjElement) override;
  void RunAction(Transition& pobjTransition) override;
  Ref<Image> NewImage() override;
  Ref<Label> NewLabel() override;
  Ref<Label> NewCountLabel() override;
  Ref<Line> NewLine() override;
  Ref<Image> NewHandle() override;
  void FrameControl() override;
  std::vector<std::string> FontNames() const override;
  std::optional<std::string> SelectOption(const std::string& pstrPrompt, const std::vector<std::string>& pcolOptions) override;
  void SelectTokens(vantrel::Workflow& pobjWorkflow, Transition& pobjTransition) override;

 private:
  Vantrel& mobjControl;
};

}  // namespace vantrel

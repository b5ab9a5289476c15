#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "chart/ChartSurface.h"
#include "model/DesignerState.h"
#include "model/Workflow.h"

namespace vantrel::test {

/// A control without a window: gives real elements of Surface, shows Net, records calls and answers from a script. It is gobjVantrel while
/// it lives; afterwards the previous designer state is restored.
class TestHost : public DesignerHost {
 public:
  TestHost() : Net(std::make_shared<vantrel::Workflow>()) {
    gobjVantrel = this;
    gobjWorkflow = Net;
    gintUseMode = vntDesign;
    gintInputPosition = vntLeft;
    gintOutputPosition = vntRight;
  }
  ~TestHost() override {
    gobjVantrel = nullptr;
    Net.reset();
  }
  TestHost(const TestHost&) = delete;
  TestHost& operator=(const TestHost&) = delete;

 private:
  DesignerStateScope mScope;  // put back last

 public:
  ChartSurface Surface;
  std::shared_ptr<vantrel::Workflow> Net;  ///< the workflow shown
  float X = 200, Y = 200;                  ///< CurrentX, CurrentY

  std::vector<bool> DirtyCalls;
  std::vector<UseModeConstant> UseModes;
  std::vector<std::string> Actions;  ///< of the transitions whose action was run
  int CurrentControlCalls = 0, FrameCalls = 0;

  struct Question {
    std::string Prompt;
    std::vector<std::string> Options;
  };
  std::vector<Question> Questions;
  std::deque<std::optional<std::string>> Answers;   ///< to SelectOption, in turn; "cancel" when used up
  std::function<void(Transition&)> OnSelectTokens;  ///< plays the user who distributes tokens by hand
  int SelectTokensCalls = 0;

  Ref<vantrel::Workflow> Workflow() const override { return Net; }
  float CurrentX() const override { return X; }
  float CurrentY() const override { return Y; }
  std::function<void()> OnDirty;  ///< plays a listener
  void Dirty(vantrel::Workflow&, bool pblnDirty) override {
    DirtyCalls.push_back(pblnDirty);
    if (OnDirty) OnDirty();
  }
  void UseMode(UseModeConstant pintMode) override { UseModes.push_back(gintUseMode = pintMode); }
  void CurrentControl(const Ref<Element>&) override { ++CurrentControlCalls; }
  void RunAction(Transition& pobjTransition) override { Actions.push_back(pobjTransition.Action); }
  Ref<Image> NewImage() override { return Surface.ctlImage.New(); }
  Ref<Label> NewLabel() override { return Surface.ctlLabel.New(); }
  Ref<Label> NewCountLabel() override { return Surface.lblCount.New(); }
  Ref<Line> NewLine() override { return Surface.ctlLine.New(); }
  Ref<Image> NewHandle() override { return Surface.ctlHandle.New(); }
  void FrameControl() override { ++FrameCalls; }
  std::optional<std::string> SelectOption(const std::string& pstrPrompt, const std::vector<std::string>& pcolOptions) override {
    Questions.push_back({pstrPrompt, pcolOptions});
    if (Answers.empty()) return std::nullopt;
    const auto answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
  void SelectTokens(vantrel::Workflow&, Transition& pobjTransition) override {
    ++SelectTokensCalls;
    if (OnSelectTokens) OnSelectTokens(pobjTransition);
  }
};

}  // namespace vantrel::test

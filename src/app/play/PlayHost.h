#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "model/DesignerHost.h"
#include "model/Workflow.h"

namespace vantrel {

/// Stands for the control and the user during a run: takes the first of any options, and counts actions without running them.
class PlayHost final : public DesignerHost {
 public:
  /// Says whether the tokens of the run have cases.
  PlayHost(Ref<vantrel::Workflow> pobjWorkflow, bool pblnCases) : mobjWorkflow(std::move(pobjWorkflow)), mblnCases(pblnCases) {}

  Ref<vantrel::Workflow> Workflow() const override { return mobjWorkflow; }
  void RunAction(Transition&) override { ++mActions; }
  bool TakesFirstCase() const override { return true; }
  /// Without options no case has all the tokens that a firing needs. Cancelling keeps it from firing with none of them, but
  /// tokens without a case move in answer to the empty text alone.
  std::optional<std::string> SelectOption(const std::string& /*pstrPrompt*/, const std::vector<std::string>& pcolOptions) override {
    if (!pcolOptions.empty()) return pcolOptions.front();
    return mblnCases ? std::nullopt : std::optional<std::string>("");
  }

  std::int64_t Actions() const { return mActions; }

 private:
  Ref<vantrel::Workflow> mobjWorkflow;
  bool mblnCases;
  std::int64_t mActions = 0;
};

}  // namespace vantrel

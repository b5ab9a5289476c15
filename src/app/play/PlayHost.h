#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "model/DesignerHost.h"
#include "model/Workflow.h"
#include "util/Error.h"

namespace vantrel {

/// Takes the place of control and user during a run: chooses the first of any options, and counts actions without running them.
class PlayHost final : public DesignerHost {
 public:
  /// The flag says whether the tokens of the run have cases.
  PlayHost(Ref<vantrel::Workflow> pobjWorkflow, bool pblnCases) : mobjWorkflow(std::move(pobjWorkflow)), mblnCases(pblnCases) {}

  Ref<vantrel::Workflow> Workflow() const override { return mobjWorkflow; }
  void RunAction(Transition&) override { ++mActions; }
  bool TakesFirstCase() const override { return true; }
  void Tell(const std::string& pstrText) override {
    if (!mFailure) mFailure = pstrText;
  }
  /// Without options no case has all the tokens that a firing needs. Cancelling then keeps the transition from firing. Tokens without a
  /// case move only if the answer is the empty text.
  std::optional<std::string> SelectOption(const std::string& /*pstrPrompt*/, const std::vector<std::string>& pcolOptions) override {
    if (!pcolOptions.empty()) return pcolOptions.front();
    return mblnCases ? std::nullopt : std::optional<std::string>("");
  }

  std::int64_t Actions() const { return mActions; }
  /// Throws the first thing that a user would have been told, if there was one.
  void ThrowFailure() const {
    if (mFailure) throw Error(vntErrInvalidCall, *mFailure);
  }

 private:
  Ref<vantrel::Workflow> mobjWorkflow;
  bool mblnCases;
  std::int64_t mActions = 0;
  std::optional<std::string> mFailure;
};

}  // namespace vantrel

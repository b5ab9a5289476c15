#include "model/game/SubflowRun.h"

#include <algorithm>

#include "model/Workflow.h"

namespace vantrel {

SubflowRun::SubflowRun(Transition& pobjTransition, const std::vector<std::shared_ptr<Token>>& pcolConsumed,
                       std::shared_ptr<WorkCase> pobjCase)
    : mobjTransition(&pobjTransition), mcolConsumed(pcolConsumed), mobjCase(std::move(pobjCase)), mobjOuter(RunOf(pcolConsumed)) {
  for (const auto& token : mcolConsumed) token->mblnTaken = true;
}

SubflowRun::~SubflowRun() {
  for (const auto& token : mcolConsumed) token->mblnTaken = false;
}

std::shared_ptr<SubflowRun> SubflowRun::Shared(const SubflowRun& pobjRun) {
  if (!pobjRun.mobjTransition) return nullptr;
  for (const auto& run : pobjRun.mobjTransition->mcolRuns) {
    if (run.get() == &pobjRun) return run;
  }
  return nullptr;
}

std::shared_ptr<SubflowRun> SubflowRun::OldestOf(const Transition& pobjTransition, const WorkCase* pobjCase) {
  for (const auto& run : pobjTransition.mcolRuns) {
    if (run->mobjCase.get() == pobjCase) return run;
  }
  return nullptr;
}

void SubflowRun::Forget(Transition& pobjTransition, const Token& pobjToken) {
  auto& runs = pobjTransition.mcolRuns;
  for (auto run = runs.begin(); run != runs.end(); ++run) {
    auto& tokens = (*run)->mcolConsumed;
    if (std::erase_if(tokens, [&](const auto& token) { return token.get() == &pobjToken; }) == 0) continue;
    if (tokens.empty()) runs.erase(run);
    return;
  }
}

std::vector<std::shared_ptr<Token>> SubflowRun::End() {
  auto consumed = std::exchange(mcolConsumed, {});
  if (auto* transition = mobjTransition.get()) {
    std::erase_if(transition->mcolRuns, [&](const auto& run) { return run.get() == this; });
  }
  return consumed;  // still taken: each is freed when it leaves its place
}

Ref<SubflowRun> RunOf(const std::vector<std::shared_ptr<Token>>& pcolTokens) {
  for (const auto& token : pcolTokens) {
    if (token->Run().IsSet()) return token->Run();
  }
  return nullptr;
}

}  // namespace vantrel

#include "model/game/SubflowRun.h"

#include "model/Workflow.h"

namespace vantrel {

SubflowRun::SubflowRun(Transition& pobjTransition, Reservation&& pChosen, Firing& pobjStarter, std::shared_ptr<WorkCase> pobjCase)
    : mobjTransition(&pobjTransition),
      mobjCase(std::move(pobjCase)),
      mChosen(std::move(pChosen)),
      mobjOuter(RunOf(mChosen.Tokens())),
      mobjStarter(&pobjStarter) {}

std::shared_ptr<SubflowRun> SubflowRun::Start(Transition& pobjTransition, Reservation&& pChosen, Firing& pobjStarter,
                                              std::shared_ptr<WorkCase> pobjCase) {
  auto run = std::make_shared<SubflowRun>(pobjTransition, std::move(pChosen), pobjStarter, std::move(pobjCase));
  auto& runs = pobjTransition.mcolRuns;
  run->mWhere = runs.insert(runs.end(), run);
  return run;
}

SubflowRun* SubflowRun::OldestOf(const Transition& pobjTransition, const WorkCase* pobjCase) {
  for (const auto& run : pobjTransition.mcolRuns) {
    if (run->mobjCase.get() == pobjCase) return run.get();
  }
  return nullptr;
}

Reservation SubflowRun::End() {
  Reservation chosen = std::move(mChosen);
  mobjTransition->mcolRuns.erase(mWhere);  // the run dies here
  return chosen;
}

Ref<SubflowRun> RunOf(const std::vector<std::shared_ptr<Token>>& pcolTokens) {
  for (const auto& token : pcolTokens) {
    if (token && token->Run().IsSet()) return token->Run();
  }
  return nullptr;
}

}  // namespace vantrel

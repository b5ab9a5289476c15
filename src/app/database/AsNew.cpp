#include "app/database/AsNew.h"

#include <unordered_set>

#include "interchange/PnmlError.h"
#include "persistence/GoneRows.h"

namespace vantrel {

std::vector<std::string> MakeNew(const std::shared_ptr<Workflow>& pobjWorkflow) {
  std::vector<std::string> missing;
  std::vector<Workflow*> waiting = {pobjWorkflow.get()};
  std::unordered_set<Workflow*> known = {pobjWorkflow.get()};
  while (!waiting.empty()) {
    Workflow& workflow = *waiting.back();
    waiting.pop_back();
    for (const auto& transition : workflow.Transitions) {
      Workflow* const inner = transition->EmbeddedWorkflow().get();
      if (inner && known.insert(inner).second) waiting.push_back(inner);
      if (inner || transition->SubflowId == 0) continue;
      missing.push_back("transition " + QuotedForMessage(transition->Name()) + " embeds workflow " + std::to_string(transition->SubflowId) +
                        ", which is not there");
      transition->SubflowId = 0;
    }
    ForgetRows(workflow);
  }
  return missing;
}

}  // namespace vantrel

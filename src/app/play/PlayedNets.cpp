#include "app/play/PlayedNets.h"

#include <algorithm>
#include <unordered_set>

namespace vantrel {

// Depth first with a list of its own: nets may be nested deeper than the stack.
std::vector<PlayedNet> PlayedNetsOf(const std::shared_ptr<Workflow>& pobjWorkflow) {
  std::vector<PlayedNet> nets, waiting = {{pobjWorkflow, ""}};
  std::unordered_set<const Workflow*> known;
  while (!waiting.empty()) {
    const PlayedNet net = std::move(waiting.back());
    waiting.pop_back();
    if (!known.insert(net.Workflow.get()).second) continue;
    nets.push_back(net);
    const std::size_t before = waiting.size();
    for (const auto& transition : net.Workflow->Transitions) {
      auto embedded = transition->EmbeddedWorkflow();
      if (embedded) waiting.push_back({std::move(embedded), net.Prefix + transition->Key + "/"});
    }
    std::reverse(waiting.begin() + static_cast<std::ptrdiff_t>(before), waiting.end());
  }
  return nets;
}

}  // namespace vantrel

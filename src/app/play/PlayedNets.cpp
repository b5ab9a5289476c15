#include "app/play/PlayedNets.h"

namespace vantrel {

namespace {

void Append(const std::shared_ptr<Workflow>& pobjWorkflow, const std::string& pstrPrefix, std::vector<PlayedNet>& pcolNets) {
  pcolNets.push_back({pobjWorkflow, pstrPrefix});
  for (const auto& transition : pobjWorkflow->Transitions) {
    const auto embedded = transition->EmbeddedWorkflow();
    if (embedded) Append(embedded, pstrPrefix + transition->Key + "/", pcolNets);
  }
}

}  // namespace

std::vector<PlayedNet> PlayedNetsOf(const std::shared_ptr<Workflow>& pobjWorkflow) {
  std::vector<PlayedNet> nets;
  Append(pobjWorkflow, "", nets);
  return nets;
}

}  // namespace vantrel

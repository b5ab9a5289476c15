#include "designer/DefaultWorkflow.h"

namespace vantrel {

namespace {

constexpr float kStartLeft = 500, kTransitionBehind = 1500, kEndBehind = 2000;

struct NodeText {
  const char* Key;
  const char* Name;
  const char* Caption;
};

template <class N>
std::shared_ptr<N> AddNode(Workflow& pobjWorkflow, Collection<N>& pcolNodes, const NodeText& pobjText, float psngLeft, float psngTop) {
  auto node = std::make_shared<N>();
  node->Workflow = &pobjWorkflow;
  node->Left(psngLeft);
  node->Top(psngTop);
  node->AssignName(pobjText.Name);
  node->Caption(pobjText.Caption);
  node->Key = pobjText.Key;
  pcolNodes.Add(node, node->Key);
  return node;
}

}  // namespace

std::shared_ptr<Workflow> MakeDefaultWorkflow(float psngTop) {
  auto workflow = std::make_shared<Workflow>();
  const auto start = AddNode(*workflow, workflow->Places, {"Place1", "StartPlace", "Start"}, kStartLeft, psngTop);
  workflow->StartPlace = start;
  const auto begin =
      AddNode(*workflow, workflow->Transitions, {"Transition1", "Begin", "Begin"}, start->Left() + kTransitionBehind, start->Top());
  workflow->CreateArc(start, begin, vntInArc);
  workflow->EndPlace(AddNode(*workflow, workflow->Places, {"Place2", "EndPlace", "End"}, begin->Left() + kEndBehind, begin->Top()));
  return workflow;
}

}  // namespace vantrel

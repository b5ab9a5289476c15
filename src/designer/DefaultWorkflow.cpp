#include "designer/DefaultWorkflow.h"

namespace vantrel {

namespace {

constexpr float kStartLeft = 500, kTransitionBehind = 1500, kEndBehind = 2000;

template <class N>
std::shared_ptr<N> Described(std::shared_ptr<N> pobjNode, const char* pstrCaption, float psngLeft, float psngTop) {
  pobjNode->Caption(pstrCaption);
  pobjNode->MoveTo(psngLeft, psngTop);
  return pobjNode;
}

}  // namespace

std::shared_ptr<Workflow> MakeDefaultWorkflow(float psngTop) {
  auto workflow = std::make_shared<Workflow>();
  const auto start = Described(workflow->NewPlace("StartPlace"), "Start", kStartLeft, psngTop);
  const auto begin = Described(workflow->NewTransition("Begin"), "Begin", start->Left() + kTransitionBehind, psngTop);
  workflow->CreateArc(start, begin, vntInArc);
  workflow->StartPlace = start;
  workflow->EndPlace(Described(workflow->NewPlace("EndPlace"), "End", begin->Left() + kEndBehind, psngTop));
  return workflow;
}

}  // namespace vantrel

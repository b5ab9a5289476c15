#include "GameNets.h"

#include <string>

#include "util/Lookup.h"

namespace vantrel::bench {

namespace {

constexpr std::int32_t kRing = 10;
constexpr std::int32_t kWidth = 50;

std::shared_ptr<Place> AddPlace(Workflow& pobjWorkflow) {
  return pobjWorkflow.NewPlace("Place" + std::to_string(pobjWorkflow.Places.Count() + 1));
}

std::shared_ptr<Transition> AddTransition(Workflow& pobjWorkflow, const std::shared_ptr<Place>& pobjFrom = nullptr,
                                          const std::shared_ptr<Place>& pobjTo = nullptr) {
  auto transition = pobjWorkflow.NewTransition("Transition" + std::to_string(pobjWorkflow.Transitions.Count() + 1));
  if (pobjFrom) pobjWorkflow.CreateArc(pobjFrom, transition, vntInArc);
  if (pobjTo) pobjWorkflow.CreateArc(pobjTo, transition, vntOutArc);
  return transition;
}

void MakeRing(Workflow& pobjWorkflow) {
  const auto first = AddPlace(pobjWorkflow);
  auto last = first;
  for (std::int32_t i = 0; i < kRing; ++i) {
    const auto next = i + 1 < kRing ? AddPlace(pobjWorkflow) : first;
    AddTransition(pobjWorkflow, last, next);
    last = next;
  }
}

void MakeForkJoin(Workflow& pobjWorkflow) {
  const auto start = AddPlace(pobjWorkflow);
  const auto fork = AddTransition(pobjWorkflow, start);
  const auto join = AddTransition(pobjWorkflow, nullptr, start);
  for (std::int32_t i = 0; i < kWidth; ++i) {
    const auto before = AddPlace(pobjWorkflow);
    const auto behind = AddPlace(pobjWorkflow);
    pobjWorkflow.CreateArc(before, fork, vntOutArc);
    AddTransition(pobjWorkflow, before, behind);
    pobjWorkflow.CreateArc(behind, join, vntInArc);
  }
}

}  // namespace

std::shared_ptr<Workflow> MakeWorkflow(Shape pShape) {
  auto workflow = std::make_shared<Workflow>();
  if (pShape == Shape::Ring) {
    MakeRing(*workflow);
  } else {
    MakeForkJoin(*workflow);
  }
  workflow->StartPlace = workflow->Places.First();
  return workflow;
}

ArrayNet MakeArrayNet(Shape pShape) {
  if (pShape == Shape::Ring) {
    ArrayNet net(kRing, kRing);
    for (std::int32_t i = 0; i < kRing; ++i) {
      net.AddInput(i, i);
      net.AddOutput(i, (i + 1) % kRing);
    }
    return net;
  }
  ArrayNet net(1 + 2 * kWidth, 2 + kWidth);
  net.AddInput(0, 0);
  net.AddOutput(1, 0);
  for (std::int32_t i = 0; i < kWidth; ++i) {
    net.AddOutput(0, 1 + i);
    net.AddInput(1 + i, 2 + i);
    net.AddOutput(2 + i, 1 + kWidth + i);
    net.AddInput(1 + kWidth + i, 1);
  }
  return net;
}

std::shared_ptr<Workflow> MakeChain(std::int32_t plngTransitions, TriggerTypes pTrigger) {
  auto workflow = std::make_shared<Workflow>();
  auto last = AddPlace(*workflow);
  workflow->StartPlace = last;
  for (std::int32_t i = 0; i < plngTransitions; ++i) {
    const auto next = AddPlace(*workflow);
    AddTransition(*workflow, last, next)->TriggerType(pTrigger);
    last = next;
  }
  workflow->EndPlace(last);
  return workflow;
}

}  // namespace vantrel::bench

#include "ChartNet.h"

#include <string>

#include "model/DesignerState.h"
#include "util/Lookup.h"

namespace vantrel::bench {

namespace {

template <class N>
std::shared_ptr<N> AddNode(Workflow& pobjNet, Collection<N>& pcolNodes, const char* pstrWord, std::int32_t plngNumber) {
  auto node = std::make_shared<N>();
  node->Workflow = &pobjNet;
  node->Key = pstrWord + std::to_string(plngNumber);
  node->AssignName(node->Key);
  node->Caption("Check the order " + std::to_string(plngNumber));
  node->Description = "What is done here, in a sentence or so.";
  node->Left(static_cast<float>(plngNumber % 100) * 1200.5F);
  node->Top(static_cast<float>(plngNumber / 100) * 900.25F);
  pcolNodes.Add(node, node->Key);
  return node;
}

void AddSegments(Arc& pobjArc, std::int32_t plngCount, float psngAt) {
  Workflow& workflow = *pobjArc.Workflow;
  pobjArc.Segments().front()->Start(psngAt, psngAt + 0.5F);
  for (std::int32_t i = 1; i < plngCount; ++i) {
    const auto segment = std::make_shared<Vector>();
    segment->Key = NextKey(workflow.Vectors, "Vector");
    segment->Arc(&pobjArc);
    segment->Start(psngAt + 100.F * static_cast<float>(i), psngAt);
    segment->End(psngAt + 100.F * static_cast<float>(i + 1), psngAt + 0.25F);
    workflow.Vectors.Add(segment, segment->Key);
  }
}

}  // namespace

std::shared_ptr<Workflow> MakeChart(std::int32_t plngPlaces) {
  const DesignerStateScope scope;
  auto net = std::make_shared<Workflow>();
  for (std::int32_t i = 1; i <= plngPlaces; ++i) AddNode(*net, net->Places, "Place", i);
  for (std::int32_t i = 1; i <= plngPlaces; ++i) AddNode(*net, net->Transitions, "Transition", i);
  for (std::int32_t i = 0; i < plngPlaces * 3; ++i) {
    const auto place = net->Places.Item(i % plngPlaces + 1);
    const auto transition = net->Transitions.Item((i * 7 + i / plngPlaces) % plngPlaces + 1);
    const auto arc = net->CreateArc(place, transition, i % 2 == 0 ? vntInArc : vntOutArc);
    arc->Guard(i % 5 == 0 ? "amount > 1000" : "");
    AddSegments(*arc, 3, static_cast<float>(i));
  }
  net->StartPlace = net->Places.First();
  net->EndPlace(net->Places.Last());
  return net;
}

std::int64_t RowsOf(const Workflow& pobjWorkflow) {
  return 1 + std::int64_t{pobjWorkflow.Places.Count()} + pobjWorkflow.Transitions.Count() + pobjWorkflow.Arcs.Count() +
         pobjWorkflow.Vectors.Count();
}

}  // namespace vantrel::bench

#include "ChartNet.h"

#include <string>

#include "model/DesignerState.h"
#include "util/Lookup.h"

namespace vantrel::bench {

namespace {

void Describe(Node& pobjNode, std::int32_t plngNumber) {
  pobjNode.Caption("Check the order " + std::to_string(plngNumber));
  pobjNode.Description = "What is done here, in a sentence or so.";
  pobjNode.MoveTo(static_cast<float>(plngNumber % 100) * 1200.5F, static_cast<float>(plngNumber / 100) * 900.25F);
}

void AddSegments(Arc& pobjArc, std::int32_t plngCount, float psngAt) {
  pobjArc.Segments().front()->Start(psngAt, psngAt + 0.5F);
  for (std::int32_t i = 1; i < plngCount; ++i) {
    const auto segment = pobjArc.AddSegment();
    segment->Start(psngAt + 100.F * static_cast<float>(i), psngAt);
    segment->End(psngAt + 100.F * static_cast<float>(i + 1), psngAt + 0.25F);
  }
}

}  // namespace

std::shared_ptr<Workflow> MakeChart(std::int32_t plngPlaces) {
  auto net = std::make_shared<Workflow>();
  for (std::int32_t i = 1; i <= plngPlaces; ++i) Describe(*net->NewPlace("Place" + std::to_string(i)), i);
  for (std::int32_t i = 1; i <= plngPlaces; ++i) Describe(*net->NewTransition("Transition" + std::to_string(i)), i);
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

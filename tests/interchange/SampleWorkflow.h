#pragma once

#include <memory>
#include <string>

#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "util/Lookup.h"

namespace vantrel::test {

inline std::shared_ptr<Place> AddPlace(Workflow& pobjWorkflow, const std::string& pstrName) {
  const auto place = std::make_shared<Place>();
  place->Key = NextKey(pobjWorkflow.Places, "Place");
  place->AssignName(pstrName);
  place->Workflow = &pobjWorkflow;
  pobjWorkflow.Places.Add(place, place->Key);
  return place;
}

inline std::shared_ptr<Transition> AddTransition(Workflow& pobjWorkflow, const std::string& pstrName) {
  const auto transition = std::make_shared<Transition>();
  transition->Key = NextKey(pobjWorkflow.Transitions, "Transition");
  transition->AssignName(pstrName);
  transition->Workflow = &pobjWorkflow;
  pobjWorkflow.Transitions.Add(transition, transition->Key);
  return transition;
}

/// A segment of an arc that has no links, as a database gives it.
inline Vector& AddSegment(Arc& pobjArc, float psngX1, float psngY1, float psngX2, float psngY2) {
  const auto segment = std::make_shared<Vector>();
  segment->Key = NextKey(pobjArc.Workflow->Vectors, "Vector");
  segment->Arc(&pobjArc);
  segment->Start(psngX1, psngY1);
  segment->End(psngX2, psngY2);
  pobjArc.Workflow->Vectors.Add(segment, segment->Key);
  return *segment;
}

/// "in" -> "work" -> "out", the first two objects side by side.
inline std::shared_ptr<Workflow> SmallWorkflow() {
  const auto workflow = std::make_shared<Workflow>();
  const auto in = AddPlace(*workflow, "in"), out = AddPlace(*workflow, "out");
  const auto work = AddTransition(*workflow, "work");
  work->Left(2000);
  out->Left(4000);
  workflow->CreateArc(in, work, vntInArc);
  workflow->CreateArc(out, work, vntOutArc);
  workflow->StartPlace = in;
  workflow->EndPlace(out);
  return workflow;
}

}  // namespace vantrel::test

#pragma once

#include <memory>
#include <string>

#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "util/Lookup.h"

namespace vantrel::test {

/// A segment of an arc that has no links, as a database gives it.
inline Vector& AddSegment(Arc& pobjArc, float psngX1, float psngY1, float psngX2, float psngY2) {
  const auto segment = pobjArc.AddSegment();
  segment->Start(psngX1, psngY1);
  segment->End(psngX2, psngY2);
  return *segment;
}

/// "in" -> "work" -> "out", the first two objects side by side.
inline std::shared_ptr<Workflow> SmallWorkflow() {
  const auto workflow = std::make_shared<Workflow>();
  const auto in = workflow->NewPlace("in"), out = workflow->NewPlace("out");
  const auto work = workflow->NewTransition("work");
  work->Left(2000);
  out->Left(4000);
  workflow->CreateArc(in, work, vntInArc);
  workflow->CreateArc(out, work, vntOutArc);
  workflow->StartPlace = in;
  workflow->EndPlace(out);
  return workflow;
}

}  // namespace vantrel::test

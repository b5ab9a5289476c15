#include "designer/gestures/Moving.h"

#include "designer/ChartObjects.h"
#include "model/SingleDrawing.h"

namespace vantrel {

void MovingGroup::Add(const std::shared_ptr<ModelObject>& pobjObject) {
  if (const auto bounds = BoundsOf(*pobjObject)) mcolMembers.push_back({pobjObject, bounds->Left, bounds->Top});
}

bool MovingGroup::MoveTo(Workflow& pobjWorkflow, float psngX, float psngY) const {
  bool moves = false;
  SingleDrawing arcsOnce(pobjWorkflow);
  for (const Member& member : mcolMembers) {
    const auto object = member.Item.lock();
    if (!object || !IsPartOf(*object, pobjWorkflow)) continue;
    vantrel::MoveTo(*object, member.Left + psngX, member.Top + psngY);
    moves = true;
  }
  arcsOnce.Finish();
  return moves;
}

}  // namespace vantrel

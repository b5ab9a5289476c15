#include "designer/gestures/Moving.h"

#include <unordered_set>
#include <utility>

#include "designer/ChartObjects.h"
#include "model/SingleDrawing.h"

namespace vantrel {

void MovingGroup::Add(const std::shared_ptr<ModelObject>& pobjObject) {
  const auto object = std::dynamic_pointer_cast<ChartObject>(pobjObject);
  const auto bounds = object ? object->Bounds() : std::nullopt;
  if (bounds) mcolMembers.push_back({object, bounds->Left, bounds->Top});
}

void MovingGroup::AddBendPoints() {
  std::vector<std::shared_ptr<Node>> nodes;
  std::unordered_set<const ModelObject*> members;
  for (const Member& member : mcolMembers) {
    auto node = std::dynamic_pointer_cast<Node>(member.Item.lock());
    if (!node) continue;
    members.insert(node.get());
    nodes.push_back(std::move(node));
  }
  for (const auto& node : nodes) {
    for (Collection<Arc>::Cursor arcs(node->OutArcs); const Arc* arc = arcs.Next();) {
      if (!members.contains(arc->Place.get()) || !members.contains(arc->Transition.get())) continue;
      const auto bendPoints = arc->BendPoints();
      for (Elbow* bendPoint : bendPoints) Add(bendPoint->shared_from_this());
    }
  }
}

bool MovingGroup::MoveTo(Workflow& pobjWorkflow, float psngX, float psngY) const {
  bool moves = false;
  SingleDrawing arcsOnce(pobjWorkflow);
  for (const Member& member : mcolMembers) {
    const auto object = member.Item.lock();
    if (!object || !pobjWorkflow.Has(*object)) continue;
    vantrel::MoveTo(*object, member.Left + psngX, member.Top + psngY);
    moves = true;
  }
  arcsOnce.Finish();
  return moves;
}

}  // namespace vantrel

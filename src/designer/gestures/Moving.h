// Moving objects of the chart together.
#pragma once

#include <memory>
#include <vector>

#include "model/ChartObject.h"

namespace vantrel {

class Workflow;

/// Objects that are dragged together. Each is moved from where it was when it joined, so that rounding to whole twips does not add up.
/// Skips objects that leave the workflow meanwhile.
class MovingGroup {
 public:
  /// Skips an object without its own position, such as an arc.
  void Add(const std::shared_ptr<ModelObject>& pobjObject);
  /// Adds the bend points of the arcs whose two ends are in the group.
  void AddBendPoints();
  /// Moves each object by so much from where it was, twips. False when there is nothing to move.
  bool MoveTo(Workflow& pobjWorkflow, float psngX, float psngY) const;

 private:
  struct Member {
    std::weak_ptr<ChartObject> Item;
    float Left, Top;
  };
  std::vector<Member> mcolMembers;
};

}  // namespace vantrel

// Moving objects of the chart together.
#pragma once

#include <memory>
#include <vector>

#include "model/ChartObject.h"

namespace vantrel {

class Workflow;

/// Objects that are dragged together. Each is placed from where it was when it joined, so that positions in whole twips lose
/// nothing on the way. Objects that leave the workflow meanwhile are skipped.
class MovingGroup {
 public:
  /// Skips an object without a position of its own, such as an arc.
  void Add(const std::shared_ptr<ModelObject>& pobjObject);
  /// Adds the bend points of the arcs whose two ends are in the group.
  void AddBendPoints();
  /// Moves each object so far from where it was, twips. False when there is nothing to move.
  bool MoveTo(Workflow& pobjWorkflow, float psngX, float psngY) const;

 private:
  struct Member {
    std::weak_ptr<ChartObject> Item;
    float Left, Top;
  };
  std::vector<Member> mcolMembers;
};

}  // namespace vantrel

// Moving objects of the chart together.
#pragma once

#include <memory>
#include <vector>

#include "model/ModelObject.h"

namespace vantrel {

class Workflow;

/// Objects that are dragged together. Each is placed from where it was when it joined, so that positions in whole twips lose
/// nothing on the way. One that leaves the workflow meanwhile is passed over.
class MovingGroup {
 public:
  /// Passes over an object without a place of its own, such as an arc.
  void Add(const std::shared_ptr<ModelObject>& pobjObject);
  /// Adds the bend points of the arcs whose two ends are in the group.
  void AddBendPoints();
  /// So far from where each object was, twips. False when there is nothing to move.
  bool MoveTo(Workflow& pobjWorkflow, float psngX, float psngY) const;

 private:
  struct Member {
    std::weak_ptr<ModelObject> Item;
    float Left, Top;
  };
  std::vector<Member> mcolMembers;
};

}  // namespace vantrel

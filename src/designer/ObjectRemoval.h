// Takes one object out of a workflow.
#pragma once

#include <memory>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// Removes an object, its elements, and what cannot stand without it. Raises nothing; tells whom it removed.
class ObjectRemoval {
 public:
  explicit ObjectRemoval(Workflow& pobjWorkflow) : mobjWorkflow(pobjWorkflow) {}

  /// A segment takes its whole arc with it. Error 5, with nothing removed, when the workflow does not have the object; other
  /// classes are left alone.
  void Remove(const std::shared_ptr<ModelObject>& pobjObject);
  const std::vector<std::shared_ptr<ModelObject>>& Removed() const { return mcolRemoved; }

 private:
  void RemoveArc(const std::shared_ptr<Arc>& pobjArc);
  void RemoveArcsOf(const Node& pobjNode);
  void RemovePlace(const std::shared_ptr<Place>& pobjPlace);
  void RemoveTransition(const std::shared_ptr<Transition>& pobjTransition);
  void RemoveNotation(const std::shared_ptr<Notation>& pobjNotation);
  void UnloadNode(Node& pobjNode);

  Workflow& mobjWorkflow;
  std::vector<std::shared_ptr<ModelObject>> mcolRemoved;
};

}  // namespace vantrel

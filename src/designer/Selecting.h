// The selection.
#pragma once

#include <memory>
#include <vector>

#include "designer/Vantrel.h"

namespace vantrel {

/// Keeps the marks of the objects in step with the collection. When objects leave a selection that is also the clipboard, a new collection
/// replaces it as the selection.
class Selecting {
 public:
  explicit Selecting(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// Null clears every mark of the workflow. Does nothing without a workflow.
  void Set(const std::shared_ptr<ObjectCollection>& pcolObjects);
  /// The same; with Comfort::ChosenIsSeen an element whose object is then not selected is no longer current.
  void Replace(const std::shared_ptr<ObjectCollection>& pcolObjects);
  void Add(const std::shared_ptr<ModelObject>& pobjObject);
  void SelectOnly(const std::shared_ptr<ModelObject>& pobjObject);
  /// Objects leave the workflow.
  void Forget(const std::vector<std::shared_ptr<ChartObject>>& pcolObjects);

  /// With Comfort::ChosenIsSeen, makes the element of a single selected object current.
  void MakeSingleCurrent();

  /// Both empty without a workflow, and without bend points when they are not wanted.
  static std::shared_ptr<ObjectCollection> All(const Workflow* pobjWorkflow, bool pblnBendPoints);
  static std::shared_ptr<ObjectCollection> InRectangle(const Workflow* pobjWorkflow, const Rect& pobjArea, bool pblnBendPoints);
  /// Adds under the object's key, or without a key if that is taken.
  static void AddTo(ObjectCollection& pcolObjects, const std::shared_ptr<ModelObject>& pobjObject);

 private:
  void ClearMarks() const;

  Vantrel& mobjControl;
};

}  // namespace vantrel

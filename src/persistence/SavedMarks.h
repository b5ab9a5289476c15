// Restores what a save changed in objects when nothing was saved.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// Remembers ids and dirty marks of objects, and keeps the objects alive.
class SavedMarks {
 public:
  void Keep(const std::shared_ptr<Workflow>& pobjWorkflow);
  void Keep(const std::shared_ptr<Transition>& pobjTransition);  ///< and SubflowId
  void Keep(const std::shared_ptr<Place>& pobjPlace);
  void Keep(const std::shared_ptr<Arc>& pobjArc);
  void Keep(const std::shared_ptr<Notation>& pobjNotation);
  void Keep(const std::shared_ptr<WorkCase>& pobjWorkcase);
  void Keep(const std::shared_ptr<Token>& pobjToken);
  void Keep(const std::shared_ptr<PropertyRecord>& pobjRecord);
  /// The workflow and everything drawn in it.
  void KeepChart(const std::shared_ptr<Workflow>& pobjWorkflow);

  /// Restores everything in reverse order, and forgets it.
  void Restore();

 private:
  template <class T>
  void KeepFields(const std::shared_ptr<T>& pobjItem);
  template <class T>
  void KeepAll(const Collection<T>& pcolItems);

  std::vector<std::function<void()>> mcolUndo;
};

}  // namespace vantrel

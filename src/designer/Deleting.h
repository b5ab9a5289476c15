// Deletes objects with everything that depends on them.
#pragma once

#include <memory>
#include <vector>

#include "designer/Vantrel.h"

namespace vantrel {

/// Removes the objects from the workflow, the chart, the selection and the firing stack. Copies on the clipboard can still be pasted.
class Deleting {
 public:
  explicit Deleting(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// The selection, or the object of the current element when nothing is selected.
  std::vector<std::shared_ptr<ModelObject>> Doomed() const;
  /// Deletes Doomed.
  void DeleteSelection();
  /// Error 5 when the workflow does not have the object.
  void DeleteObject(const std::shared_ptr<ModelObject>& pobjObject);

 private:
  Vantrel& mobjControl;
};

}  // namespace vantrel

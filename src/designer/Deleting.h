// Deletes objects with everything that depends on them.
#pragma once

#include <memory>
#include <vector>

#include "designer/Vantrel.h"

namespace vantrel {

// Objects leave the workflow, the chart, the selection and the firing stack. Copies on the clipboard can still be pasted.

/// What DeleteSelection takes: the selection, or the object of the current element when nothing is selected.
std::vector<std::shared_ptr<ModelObject>> DoomedObjects(const Vantrel& pobjControl);
void DeleteSelection(Vantrel& pobjControl);
/// Error 5 when the workflow does not have the object.
void DeleteObject(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjObject);

}  // namespace vantrel

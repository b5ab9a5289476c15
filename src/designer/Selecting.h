// The selection.
#pragma once

#include <memory>
#include <vector>

#include "designer/Vantrel.h"

namespace vantrel {

// These keep the marks of the objects in step with the collection. When objects leave a selection that is also the clipboard, a new
// collection replaces it as the selection.

/// Null clears every mark of the workflow. Does nothing without a workflow.
void SetSelection(Vantrel& pobjControl, const std::shared_ptr<ObjectCollection>& pcolObjects);
/// The same; with Comfort::ChosenIsSeen an element whose object is then not selected is no longer current.
void ReplaceSelection(Vantrel& pobjControl, const std::shared_ptr<ObjectCollection>& pcolObjects);
void AddToSelection(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjObject);
void SelectOnly(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjObject);
/// Objects leave the workflow.
void ForgetObjects(Vantrel& pobjControl, const std::vector<std::shared_ptr<ChartObject>>& pcolObjects);
/// With Comfort::ChosenIsSeen, makes the element of a single selected object current.
void MakeSingleCurrent(Vantrel& pobjControl);

/// Every object, in the order in which they are selected; those inside a rectangle. Both empty without a workflow, and without bend points
/// with Comfort::ChosenIsSeen.
std::shared_ptr<ObjectCollection> AllObjects(const Vantrel& pobjControl);
std::shared_ptr<ObjectCollection> ObjectsInside(const Vantrel& pobjControl, const Rect& pobjArea);
/// Adds under the object's key, or without a key if that is taken.
void AddUnderKey(ObjectCollection& pcolObjects, const std::shared_ptr<ModelObject>& pobjObject);

}  // namespace vantrel

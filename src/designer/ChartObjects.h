// Functions for selecting, copying and aligning objects of any class.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "chart/Geometry.h"
#include "model/ModelObject.h"
#include "model/Workflow.h"

namespace vantrel {

/// The key in the workflow's collection; empty for an object that no chart shows.
std::string KeyOf(const ModelObject& pobjObject);
/// True when the workflow's collection has this very object.
bool IsPartOf(const ModelObject& pobjObject, const Workflow& pobjWorkflow);
bool IsSelected(const ModelObject& pobjObject);
/// Marks the object. Does nothing if it is marked already.
void Select(ModelObject& pobjObject, bool pblnOn);
/// The picture of a place or transition, the box of a note, the handle of a bend point, twips; nothing for other objects.
std::optional<Rect> BoundsOf(const ModelObject& pobjObject);
/// Moves the top-left corner; nothing for objects that have none, or that are there already.
void MoveTo(ModelObject& pobjObject, float psngLeft, float psngTop);
void MoveTo(ChartObject& pobjObject, float psngLeft, float psngTop);

/// Those of a selection or clipboard that lie on a chart, which is all but what a host may have put there.
std::vector<std::shared_ptr<ChartObject>> ChartObjectsIn(const Collection<ModelObject>& pcolObjects);

}  // namespace vantrel

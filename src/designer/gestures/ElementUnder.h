// Finds the element of a mouse event.
#pragma once

#include <memory>

#include "chart/Element.h"
#include "model/ModelObject.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// The frontmost object image, label or bend-point handle under a point (twips), or null for the background. Ignores token counts and
/// lines.
Element* ElementUnder(const Vantrel& pobjControl, float psngX, float psngY);

/// The model object that an element shows, or null when the workflow has no such object.
std::shared_ptr<ModelObject> ObjectOf(const Vantrel& pobjControl, const Element& pobjElement);

/// The element that represents an object: a picture, a note's text, the first line of an arc, a segment's line. Null for an object without
/// any.
Ref<Element> ElementOf(const ModelObject& pobjObject);

/// False for null, and for one that was taken off its chart.
template <class E>
bool IsOnChart(const Ref<E>& pobjElement) {
  return pobjElement && pobjElement->Surface();
}

}  // namespace vantrel

#include "designer/ChartObjects.h"

#include <algorithm>
#include <cmath>

namespace vantrel {

namespace {

// Calls with the object as what it is; the fallback for other classes.
template <class Result, class Visitor>
Result Visit(const ModelObject& pobjObject, Result pFallback, Visitor&& pVisitor) {
  if (const auto* place = dynamic_cast<const Place*>(&pobjObject)) return pVisitor(*place, &Workflow::Places);
  if (const auto* transition = dynamic_cast<const Transition*>(&pobjObject)) return pVisitor(*transition, &Workflow::Transitions);
  if (const auto* arc = dynamic_cast<const Arc*>(&pobjObject)) return pVisitor(*arc, &Workflow::Arcs);
  if (const auto* vector = dynamic_cast<const Vector*>(&pobjObject)) return pVisitor(*vector, &Workflow::Vectors);
  if (const auto* elbow = dynamic_cast<const Elbow*>(&pobjObject)) return pVisitor(*elbow, &Workflow::Elbows);
  if (const auto* note = dynamic_cast<const Notation*>(&pobjObject)) return pVisitor(*note, &Workflow::Notations);
  return pFallback;
}

Rect Box(float psngLeft, float psngTop, float psngWidth, float psngHeight) {
  return {psngLeft, psngTop, psngLeft + psngWidth, psngTop + psngHeight};
}

std::int32_t Whole(float psngValue) { return static_cast<std::int32_t>(std::nearbyint(std::clamp(psngValue, -1e9F, 1e9F))); }

}  // namespace

std::string KeyOf(const ModelObject& pobjObject) {
  return Visit(pobjObject, std::string(), [](const auto& object, auto) { return object.Key; });
}

bool IsPartOf(const ModelObject& pobjObject, const Workflow& pobjWorkflow) {
  return Visit(pobjObject, false,
               [&](const auto& object, auto collection) { return (pobjWorkflow.*collection).Find(object.Key).get() == &object; });
}

bool IsSelected(const ModelObject& pobjObject) {
  if (const auto* vector = dynamic_cast<const Vector*>(&pobjObject)) return vector->Arc() && vector->Selected();
  return Visit(pobjObject, false, [](const auto& object, auto) { return object.Selected(); });
}

void Select(ModelObject& pobjObject, bool pblnOn) {
  if (IsSelected(pobjObject) == pblnOn) return;
  if (auto* node = dynamic_cast<Node*>(&pobjObject)) return node->Selected(pblnOn);
  if (auto* arc = dynamic_cast<Arc*>(&pobjObject)) return arc->Selected(pblnOn);
  if (auto* elbow = dynamic_cast<Elbow*>(&pobjObject)) return elbow->Selected(pblnOn);
  if (auto* note = dynamic_cast<Notation*>(&pobjObject)) return note->Selected(pblnOn);
  if (auto* vector = dynamic_cast<Vector*>(&pobjObject); vector && vector->Arc()) vector->Selected(pblnOn);
}

std::optional<Rect> BoundsOf(const ModelObject& pobjObject) {
  if (const auto* node = dynamic_cast<const Node*>(&pobjObject)) {
    const auto* image = node->Image.get();
    return Box(node->Left(), node->Top(), image ? image->Width() : 0, image ? image->Height() : 0);
  }
  if (const auto* elbow = dynamic_cast<const Elbow*>(&pobjObject)) {
    const auto* handle = elbow->Handle.get();
    return Box(elbow->Left(), elbow->Top(), handle ? handle->Width() : 0, handle ? handle->Height() : 0);
  }
  if (const auto* note = dynamic_cast<const Notation*>(&pobjObject)) {
    return Box(static_cast<float>(note->Left()), static_cast<float>(note->Top()), static_cast<float>(note->Width()),
               static_cast<float>(note->Height()));
  }
  return std::nullopt;
}

void MoveTo(ModelObject& pobjObject, float psngLeft, float psngTop) {
  if (auto* node = dynamic_cast<Node*>(&pobjObject)) {
    if (node->Left() != psngLeft || node->Top() != psngTop) node->MoveTo(psngLeft, psngTop);
  } else if (auto* elbow = dynamic_cast<Elbow*>(&pobjObject)) {
    if (elbow->Left() != psngLeft) elbow->Left(psngLeft);
    if (elbow->Top() != psngTop) elbow->Top(psngTop);
  } else if (auto* note = dynamic_cast<Notation*>(&pobjObject)) {
    note->Left(Whole(psngLeft));
    note->Top(Whole(psngTop));
    note->Dirty = true;
  }
}

}  // namespace vantrel

#include "designer/ChartObjects.h"

#include <utility>

namespace vantrel {

namespace {

const ChartObject* OnChart(const ModelObject& pobjObject) { return dynamic_cast<const ChartObject*>(&pobjObject); }

}  // namespace

std::string KeyOf(const ModelObject& pobjObject) {
  const ChartObject* object = OnChart(pobjObject);
  return object ? object->Key : std::string();
}

bool IsPartOf(const ModelObject& pobjObject, const Workflow& pobjWorkflow) {
  const ChartObject* object = OnChart(pobjObject);
  return object && pobjWorkflow.Has(*object);
}

bool IsSelected(const ModelObject& pobjObject) {
  const ChartObject* object = OnChart(pobjObject);
  return object && object->Selected();
}

void Select(ModelObject& pobjObject, bool pblnOn) {
  auto* object = dynamic_cast<ChartObject*>(&pobjObject);
  if (object && object->Selected() != pblnOn) object->Selected(pblnOn);
}

std::optional<Rect> BoundsOf(const ModelObject& pobjObject) {
  const ChartObject* object = OnChart(pobjObject);
  return object ? object->Bounds() : std::nullopt;
}

void MoveTo(ModelObject& pobjObject, float psngLeft, float psngTop) {
  if (auto* object = dynamic_cast<ChartObject*>(&pobjObject)) MoveTo(*object, psngLeft, psngTop);
}

void MoveTo(ChartObject& pobjObject, float psngLeft, float psngTop) {
  const auto bounds = pobjObject.Bounds();
  if (bounds && (bounds->Left != psngLeft || bounds->Top != psngTop)) pobjObject.MoveTo(psngLeft, psngTop);
}

std::vector<std::shared_ptr<ChartObject>> ChartObjectsIn(const Collection<ModelObject>& pcolObjects) {
  std::vector<std::shared_ptr<ChartObject>> objects;
  for (const auto& item : pcolObjects) {
    if (auto object = std::dynamic_pointer_cast<ChartObject>(item)) objects.push_back(std::move(object));
  }
  return objects;
}

}  // namespace vantrel

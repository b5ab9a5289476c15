#include "designer/Deleting.h"

#include <utility>

#include "designer/ChartObjects.h"
#include "designer/Selecting.h"

namespace vantrel {

std::vector<std::shared_ptr<ModelObject>> DoomedObjects(const Vantrel& pobjControl) {
  std::vector<std::shared_ptr<ModelObject>> objects;
  const auto& selection = pobjControl.Selection();
  for (const auto& object : *selection) objects.push_back(object);
  const Element* current = pobjControl.CurrentControl().get();
  if (objects.empty() && current) {
    if (auto object = pobjControl.GetVNTRObject(current->Tag())) objects.push_back(std::move(object));
  }
  return objects;
}

void DeleteObject(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjObject) {
  const auto object = pobjObject;  // NOLINT(performance-unnecessary-copy-initialization): it may be the selection's share, which goes
  const auto workflow = pobjControl.Workflow();
  if (!workflow || !object) throw Error(vntErrObjectNotSet);
  workflow->Dirty(true);
  const auto chartObject = std::dynamic_pointer_cast<ChartObject>(object);
  if (chartObject && chartObject->Kind() != ChartKind::Elbow) ForgetObjects(pobjControl, workflow->Remove(chartObject));
  pobjControl.CurrentControl(nullptr);
  workflow->Dirty(true);
}

void DeleteSelection(Vantrel& pobjControl) {
  const auto workflow = pobjControl.Workflow();
  const auto objects = DoomedObjects(pobjControl);
  pobjControl.Selection(nullptr);
  for (const auto& object : objects) {
    if (IsPartOf(*object, *workflow)) DeleteObject(pobjControl, object);
  }
  pobjControl.Selection(nullptr);
  pobjControl.CurrentControl(nullptr);
  pobjControl.Dirty(true);
  pobjControl.Refresh();
}

}  // namespace vantrel

#include "designer/Deleting.h"

#include <utility>

#include "designer/ChartObjects.h"
#include "designer/Selecting.h"

namespace vantrel {

std::vector<std::shared_ptr<ModelObject>> Deleting::Doomed() const {
  std::vector<std::shared_ptr<ModelObject>> objects;
  const auto selection = mobjControl.Selection();
  for (const auto& object : *selection) objects.push_back(object);
  const Element* current = mobjControl.CurrentControl().get();
  if (objects.empty() && current) {
    if (auto object = mobjControl.GetVNTRObject(current->Tag())) objects.push_back(std::move(object));
  }
  return objects;
}

void Deleting::DeleteObject(const std::shared_ptr<ModelObject>& pobjObject) {
  const auto object = pobjObject;  // NOLINT(performance-unnecessary-copy-initialization): it may be the selection's share, which goes
  const auto workflow = mobjControl.Workflow();
  if (!workflow || !object) throw Error(vntErrObjectNotSet);
  workflow->Dirty(true);
  const auto chartObject = std::dynamic_pointer_cast<ChartObject>(object);
  if (chartObject && chartObject->Kind() != ChartKind::Elbow) Selecting(mobjControl).Forget(workflow->Remove(chartObject));
  mobjControl.CurrentControl(nullptr);
  workflow->Dirty(true);
}

void Deleting::DeleteSelection() {
  const auto workflow = mobjControl.Workflow();
  const auto objects = Doomed();
  mobjControl.Selection(nullptr);
  for (const auto& object : objects) {
    if (IsPartOf(*object, *workflow)) DeleteObject(object);
  }
  mobjControl.Selection(nullptr);
  mobjControl.CurrentControl(nullptr);
  mobjControl.Dirty(true);
  mobjControl.Refresh();
}

}  // namespace vantrel

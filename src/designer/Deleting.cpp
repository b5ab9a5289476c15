#include "designer/Deleting.h"

#include "designer/ChartObjects.h"
#include "designer/ObjectRemoval.h"
#include "designer/Selecting.h"
#include "designer/StillShown.h"

namespace vantrel {

namespace {

std::vector<std::shared_ptr<ModelObject>> Doomed(const Vantrel& pobjControl) {
  const auto& selection = pobjControl.Selection();
  std::vector<std::shared_ptr<ModelObject>> objects;
  for (const auto& object : *selection) objects.push_back(object);
  return objects;
}

}  // namespace

void Deleting::DeleteObject(const std::shared_ptr<ModelObject>& pobjObject) {
  const auto object = pobjObject;  // NOLINT(performance-unnecessary-copy-initialization): it may be the selection's share, which goes
  const auto workflow = mobjControl.Workflow();
  if (!workflow) throw Error(vntErrObjectNotSet);
  const StillShown shown(mobjControl);
  workflow->Dirty(true);
  if (!shown) return;
  ObjectRemoval removal(*workflow);
  removal.Remove(object);
  Selecting(mobjControl).Forget(removal.Removed());
  mobjControl.CurrentControl(nullptr);
  workflow->Dirty(true);
}

void Deleting::DeleteSelection() {
  const StillShown shown(mobjControl);
  const auto workflow = mobjControl.Workflow();
  auto objects = Doomed(mobjControl);
  if (objects.empty() && mobjControl.CurrentControl()) {
    objects.push_back(mobjControl.GetVNTRObject(mobjControl.CurrentControl()->Tag()));
  }
  mobjControl.Selection(nullptr);
  for (const auto& object : objects) {
    if (!object || !IsPartOf(*object, *workflow)) continue;
    DeleteObject(object);
    if (!shown) return;
  }
  mobjControl.Selection(nullptr);
  mobjControl.CurrentControl(nullptr);
  mobjControl.Dirty(true);
  if (shown) mobjControl.Refresh();
}

}  // namespace vantrel

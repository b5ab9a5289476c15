#include "model/ModelObject.h"

#include "util/MsgBox.h"

namespace vantrel {

void ModelObject::SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) {
  if (!pcolProperties) throw Error(vntErrObjectNotSet);
  const auto keeper = KeepAlive();
  const auto records = pcolProperties;  // NOLINT(performance-unnecessary-copy-initialization): it may be the object's share
  for (const auto& record : *records) {
    const Variant value = record->Value;
    SetProperty(record->Name, value);
  }
}

bool ModelObject::Guarded(const std::function<void()>& pStore) { return ShowErrors(pStore); }

}  // namespace vantrel

#include "model/ModelObject.h"

#include "util/MsgBox.h"

namespace vantrel {

void ModelObject::SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) {
  if (!pcolProperties) throw Error(vntErrObjectNotSet);
  for (const auto& record : *pcolProperties) {
    const Variant value = record->Value;
    SetProperty(record->Name, value);
  }
}

bool ModelObject::Guarded(const std::function<void()>& pStore) { return ShowErrors(pStore); }

}  // namespace vantrel

#include "model/Token.h"

#include <cstddef>
#include <type_traits>

#include "model/Place.h"
#include "model/WorkCase.h"
#include "model/Workflow.h"
#include "model/game/SubflowRun.h"

namespace vantrel {

void CaseLink::Report() const {
  if (auto* place = mobjToken->Place.get()) place->TokensChanged();
}

CaseMark& CaseMark::operator=(bool pblnOn) {
  mblnOn = pblnOn;
  if (!mblnOfToken) return *this;
  static_assert(std::is_standard_layout_v<CaseFields>);
  const auto* const fields =
      reinterpret_cast<const CaseFields*>(reinterpret_cast<const std::byte*>(this) - offsetof(CaseFields, mblnCaseEnabled));
  fields->WorkCase.Report();
  return *this;
}

Token::~Token() = default;

const std::shared_ptr<PropertyCollection>& Token::CustomProperties() const {
  if (mblnEmptyProperties) {
    mblnEmptyProperties = false;
    mcolCustomProperties = std::make_unique<std::shared_ptr<PropertyCollection>>(std::make_shared<PropertyCollection>());
  }
  static const std::shared_ptr<PropertyCollection> none;
  return mcolCustomProperties ? *mcolCustomProperties : none;
}

bool Token::HasCustomProperties() const { return mcolCustomProperties && !(*mcolCustomProperties)->IsEmpty(); }

void Token::CustomProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) {
  mblnEmptyProperties = false;
  mcolCustomProperties = pcolProperties ? std::make_unique<std::shared_ptr<PropertyCollection>>(pcolProperties) : nullptr;
}

void Token::CaseEnabled(bool pblnOn) {
  mblnCaseEnabled = pblnOn;
  if (!pblnOn) return;
  if (auto* place = Place.get()) place->CaseEnabled(true);
}

void Token::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) {
  const bool stored = Guarded([&] {
    if (!CustomProperties()) throw Error(vntErrObjectNotSet);
    for (const auto& record : **mcolCustomProperties) {
      if (record->Name != pstrPropName) continue;
      record->Value = pvarValue;
      break;
    }
  });
  if (!stored) return;
  Dirty = true;
  const auto* place = Place.get();
  if (place && place->Workflow) place->Workflow->Dirty(true);
}

}  // namespace vantrel

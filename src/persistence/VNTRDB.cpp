#include "persistence/VNTRDB.h"

#include "persistence/WorkflowDatabase.h"
#include "util/MsgBox.h"

namespace vantrel {

VNTRDB::VNTRDB() : mobjDatabase(std::make_unique<WorkflowDatabase>(Connection)) {}

VNTRDB::~VNTRDB() = default;

void VNTRDB::ShowReport() {
  const Report report = mobjDatabase->TakeReport();
  for (const Error& failure : report.Failures()) MsgBox(failure.Description);
}

// What fails while a workflow is read for another one is shown when that one is read.
template <class Work>
auto VNTRDB::Shown(Work&& pWork) {
  try {
    auto result = pWork();
    ShowReport();
    return result;
  } catch (...) {
    ShowReport();
    throw;
  }
}

std::shared_ptr<Workflow> VNTRDB::ReadWorkflow(std::int32_t plngRecId) {
  return Shown([&] { return mobjDatabase->ReadWorkflow(plngRecId); });
}

std::int32_t VNTRDB::SaveWorkFlow(const std::shared_ptr<Workflow>& pobjWorkflow) {
  return Shown([&] { return mobjDatabase->SaveWorkFlow(pobjWorkflow); });
}

void VNTRDB::DeleteWorkflow(const Variant& pvarRecId) {
  Shown([&] { return mobjDatabase->DeleteWorkflow(pvarRecId), 0; });
}

std::int32_t VNTRDB::NextId(const std::string& pstrTableName) {
  return Shown([&] { return mobjDatabase->NextId(pstrTableName); });
}

std::shared_ptr<PropertyCollection> VNTRDB::ReadTokenProperties(std::int32_t plngPlaceRecId) {
  return Shown([&] { return mobjDatabase->ReadTokenProperties(plngPlaceRecId); });
}

std::shared_ptr<Collection<PropertyOption>> VNTRDB::ReadPropertyOptions(std::int32_t plngPropertyRecId) {
  return Shown([&] { return mobjDatabase->ReadPropertyOptions(plngPropertyRecId); });
}

void VNTRDB::SaveTokenProperties(const std::shared_ptr<Place>& pobjPlace) {
  Shown([&] { return mobjDatabase->SaveTokenProperties(pobjPlace), 0; });
}

Variant VNTRDB::SaveWorkcase(const std::shared_ptr<WorkCase>& pobjWorkcase) {
  return Shown([&] { return mobjDatabase->SaveWorkcase(pobjWorkcase); });
}

Variant VNTRDB::SaveToken(const std::shared_ptr<Token>& pobjToken) {
  return Shown([&] { return mobjDatabase->SaveToken(pobjToken); });
}

void VNTRDB::SaveTokenPropertyValues(const std::shared_ptr<Token>& pobjToken) {
  Shown([&] { return mobjDatabase->SaveTokenPropertyValues(pobjToken), 0; });
}

std::vector<std::shared_ptr<WorkCase>> VNTRDB::ReadCases(const std::shared_ptr<Workflow>& pobjWorkflow) {
  return Shown([&] { return mobjDatabase->ReadCases(pobjWorkflow); });
}

}  // namespace vantrel

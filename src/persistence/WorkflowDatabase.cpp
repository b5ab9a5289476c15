#include "persistence/WorkflowDatabase.h"

#include "model/DesignerState.h"
#include "persistence/CaseReading.h"
#include "persistence/NestedReading.h"
#include "persistence/TokenPropertyStore.h"
#include "persistence/WorkflowSaving.h"

namespace vantrel {

namespace {

constexpr const char* kNoConnectionText = "A database connection can not be detected.  The save operation has been aborted.";

}  // namespace

// 0, or the number of the failure with which the transaction was lost.
template <class Work>
std::int32_t WorkflowDatabase::Save(SavedMarks& pobjMarks, Work&& pWork) {
  try {
    mobjAccess.Write(pobjMarks, pWork);
    return 0;
  } catch (const TransactionLost& error) {
    return error.Number;
  }
}

std::shared_ptr<Workflow> WorkflowDatabase::ReadWorkflow(std::int32_t plngRecId) {
  if (auto* reading = NestedReading::ThatAsks()) return reading->Embedded(*this, plngRecId);
  return NestedReading().Run(*this, plngRecId);
}

std::int32_t WorkflowDatabase::SaveWorkFlow(const std::shared_ptr<Workflow>& pobjWorkflow) {
  if (!mobjAccess.HasConnection()) {
    mobjAccess.Note(Error(vntErrObjectNotSet, kNoConnectionText));
    return kNoConnection;
  }
  if (!pobjWorkflow) throw Error(vntErrObjectNotSet);
  SavedMarks marks;
  marks.KeepChart(pobjWorkflow);
  return Save(marks, [&] { SaveRowAndChart(mobjAccess, *pobjWorkflow, pobjWorkflow->Dirty()); });
}

void WorkflowDatabase::DeleteWorkflow(const Variant& pvarRecId) {
  const std::int32_t id = pvarRecId.ToInt32();
  SavedMarks none;
  mobjAccess.Write(none, [&] { DeleteRowAndChart(mobjAccess, id); });
}

std::shared_ptr<PropertyCollection> WorkflowDatabase::ReadTokenProperties(std::int32_t plngPlaceRecId) {
  return vantrel::ReadTokenProperties(mobjAccess, plngPlaceRecId);
}

std::shared_ptr<Collection<PropertyOption>> WorkflowDatabase::ReadPropertyOptions(std::int32_t plngPropertyRecId) {
  return vantrel::ReadPropertyOptions(mobjAccess, plngPropertyRecId);
}

void WorkflowDatabase::SaveTokenProperties(const std::shared_ptr<Place>& pobjPlace) {
  if (!pobjPlace) throw Error(vntErrObjectNotSet);
  SavedMarks none;
  mobjAccess.Write(none, [&] { vantrel::SaveTokenProperties(mobjAccess, *pobjPlace); });
}

Variant WorkflowDatabase::SaveWorkcase(const std::shared_ptr<WorkCase>& pobjWorkcase) {
  if (!mobjAccess.HasConnection()) {
    mobjAccess.Note(Error(vntErrObjectNotSet, kNoConnectionText));
    return kNoConnection;
  }
  if (!pobjWorkcase) throw Error(vntErrObjectNotSet);
  SavedMarks marks;
  marks.Keep(pobjWorkcase);
  Variant result;
  const std::int32_t lost = Save(marks, [&] { result = mobjCaseStore.SaveWorkcase(*pobjWorkcase); });
  return lost == 0 ? result : Variant(lost);
}

Variant WorkflowDatabase::SaveToken(const std::shared_ptr<Token>& pobjToken) {
  if (!pobjToken) throw Error(vntErrObjectNotSet);
  SavedMarks marks;
  marks.Keep(pobjToken);
  Variant result;
  const std::int32_t lost = Save(marks, [&] {
    result = mobjCaseStore.SaveToken(marks, *pobjToken);
    pobjToken->Dirty = false;
  });
  return lost == 0 ? result : Variant(lost);
}

void WorkflowDatabase::SaveTokenPropertyValues(const std::shared_ptr<Token>& pobjToken) {
  if (!pobjToken) throw Error(vntErrObjectNotSet);
  SavedMarks marks;
  mobjAccess.Write(marks, [&] { SaveTokenValues(mobjAccess, marks, *pobjToken); });
}

std::vector<std::shared_ptr<WorkCase>> WorkflowDatabase::ReadCases(const std::shared_ptr<Workflow>& pobjWorkflow) {
  if (!pobjWorkflow) throw Error(vntErrObjectNotSet);
  if (!pobjWorkflow->Tokens.IsEmpty()) throw Error(vntErrInvalidCall);
  CaseReading reading(mobjAccess, *pobjWorkflow);
  try {
    mobjAccess.Read([&] {
      reading.Read();
      return true;
    });
  } catch (...) {
    pobjWorkflow->Tokens.Clear();
    throw;
  }
  const DesignerStateScope state;
  gobjWorkflow = pobjWorkflow;
  reading.PutBack();
  return reading.TakeCases();
}

}  // namespace vantrel

#include "persistence/VNTRDB.h"

#include <algorithm>

#include "model/DesignerState.h"
#include "persistence/CaseReading.h"
#include "persistence/CaseStore.h"
#include "persistence/DatabaseAccess.h"
#include "persistence/TokenPropertyStore.h"
#include "persistence/WorkflowReading.h"
#include "persistence/WorkflowSaving.h"

namespace vantrel {

namespace {

// Each embedded workflow is read inside the reading of the one around it, on the thread's stack.
constexpr std::size_t kDeepestEmbedding = 200;

std::string ChainText(const std::vector<std::int32_t>& pcolIds, std::int32_t plngLast) {
  std::string text;
  for (const std::int32_t id : pcolIds) text += std::to_string(id) + " > ";
  return text + std::to_string(plngLast);
}

}  // namespace

// Notes that a workflow is being read.
class VNTRDB::ReadingScope {
 public:
  ReadingScope(VNTRDB& pobjDatabase, std::int32_t plngId) : mcolReading(pobjDatabase.mcolReading), mobjBefore(gobjWorkflowReader) {
    const auto outer = std::find(mcolReading.begin(), mcolReading.end(), plngId);
    if (outer != mcolReading.end()) {
      const std::vector<std::int32_t> circle(outer, mcolReading.end());
      throw Error(vntErrInvalidCall,
                  "Workflow " + std::to_string(plngId) + " is embedded in itself in the database: " + ChainText(circle, plngId) + ".");
    }
    if (mcolReading.size() >= kDeepestEmbedding) {
      throw Error(vntErrOutOfStack, "Workflow " + std::to_string(mcolReading.front()) + " has other workflows embedded more than " +
                                        std::to_string(kDeepestEmbedding) + " deep.");
    }
    mcolReading.push_back(plngId);
    gobjWorkflowReader = &pobjDatabase;
  }
  ~ReadingScope() {
    mcolReading.pop_back();
    gobjWorkflowReader = mobjBefore;
  }
  ReadingScope(const ReadingScope&) = delete;
  ReadingScope& operator=(const ReadingScope&) = delete;

 private:
  std::vector<std::int32_t>& mcolReading;
  WorkflowReader* mobjBefore;
};

VNTRDB::VNTRDB() : mobjAccess(std::make_unique<DatabaseAccess>(Connection)), mobjCaseStore(std::make_unique<CaseStore>(*mobjAccess)) {}

VNTRDB::~VNTRDB() = default;

std::shared_ptr<Workflow> VNTRDB::ReadWorkflow(std::int32_t plngRecId) {
  const ReadingScope scope(*this, plngRecId);
  auto workflow = std::make_shared<Workflow>();
  gobjWorkflow = workflow;
  bool found = false;
  mobjAccess->Read([&] { return found = WorkflowReading(*mobjAccess, workflow).Run(plngRecId); });
  if (found) return workflow;
  mobjNothingFound = std::move(workflow);
  return nullptr;
}

std::int32_t VNTRDB::SaveWorkFlow(const std::shared_ptr<Workflow>& pobjWorkflow) {
  if (!Connection) {
    mobjAccess->ShowNoConnection();
    return kNoConnection;
  }
  if (!pobjWorkflow) throw Error(vntErrObjectNotSet);
  SavedMarks marks;
  marks.KeepChart(pobjWorkflow);
  try {
    mobjAccess->Write(marks, [&] { SaveRowAndChart(*mobjAccess, *pobjWorkflow); });
    return 0;
  } catch (const TransactionLost& error) {
    return error.Number;
  }
}

void VNTRDB::DeleteWorkflow(const Variant& pvarRecId) {
  const std::int32_t id = pvarRecId.ToInt32();
  SavedMarks none;
  mobjAccess->Write(none, [&] { DeleteRowAndChart(*mobjAccess, id); });
}

std::int32_t VNTRDB::NextId(const std::string& pstrTableName) { return mobjAccess->NextId(pstrTableName); }

std::shared_ptr<PropertyCollection> VNTRDB::ReadTokenProperties(std::int32_t plngPlaceRecId) {
  return vantrel::ReadTokenProperties(*mobjAccess, plngPlaceRecId);
}

std::shared_ptr<Collection<PropertyOption>> VNTRDB::ReadPropertyOptions(std::int32_t plngPropertyRecId) {
  return vantrel::ReadPropertyOptions(*mobjAccess, plngPropertyRecId);
}

void VNTRDB::SaveTokenProperties(const std::shared_ptr<Place>& pobjPlace) {
  if (!pobjPlace) throw Error(vntErrObjectNotSet);
  SavedMarks none;
  mobjAccess->Write(none, [&] { vantrel::SaveTokenProperties(*mobjAccess, *pobjPlace); });
}

Variant VNTRDB::SaveWorkcase(const std::shared_ptr<WorkCase>& pobjWorkcase) {
  if (!Connection) {
    mobjAccess->ShowNoConnection();
    return kNoConnection;
  }
  if (!pobjWorkcase) throw Error(vntErrObjectNotSet);
  SavedMarks marks;
  marks.Keep(pobjWorkcase);
  Variant result;
  try {
    mobjAccess->Write(marks, [&] { result = mobjCaseStore->SaveWorkcase(*pobjWorkcase); });
    return result;
  } catch (const TransactionLost& error) {
    return error.Number;
  }
}

Variant VNTRDB::SaveToken(const std::shared_ptr<Token>& pobjToken) {
  if (!pobjToken) throw Error(vntErrObjectNotSet);
  SavedMarks marks;
  marks.Keep(pobjToken);
  Variant result;
  try {
    mobjAccess->Write(marks, [&] {
      result = mobjCaseStore->SaveToken(marks, *pobjToken);
      pobjToken->Dirty = false;
    });
    return result;
  } catch (const TransactionLost& error) {
    return error.Number;
  }
}

void VNTRDB::SaveTokenPropertyValues(const std::shared_ptr<Token>& pobjToken) {
  if (!pobjToken) throw Error(vntErrObjectNotSet);
  SavedMarks marks;
  mobjAccess->Write(marks, [&] { SaveTokenValues(*mobjAccess, marks, *pobjToken); });
}

std::vector<std::shared_ptr<WorkCase>> VNTRDB::ReadCases(const std::shared_ptr<Workflow>& pobjWorkflow) {
  if (!pobjWorkflow) throw Error(vntErrObjectNotSet);
  if (!pobjWorkflow->Tokens.IsEmpty()) throw Error(vntErrInvalidCall);
  CaseReading reading(*mobjAccess, *pobjWorkflow);
  try {
    mobjAccess->Read([&] {
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

std::int32_t VNTRDB::Failures() const { return mobjAccess->Failures(); }

const std::string& VNTRDB::LastFailure() const { return mobjAccess->LastFailure(); }

}  // namespace vantrel

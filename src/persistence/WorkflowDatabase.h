// What VNTRDB does, without a word to the user: failures go into a report.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/Workflow.h"
#include "model/WorkflowReader.h"
#include "persistence/CaseStore.h"
#include "persistence/DatabaseAccess.h"

namespace vantrel {

/// Works on whatever connection its owner has at the time of the call. VNTRDB says what the operations do; where it shows a failure in a
/// message box, the failure is in the report here, and what is not reported is thrown. For one thread.
class WorkflowDatabase final : public WorkflowReader {
 public:
  /// The result of a save without a connection.
  static constexpr std::int32_t kNoConnection = 999;

  explicit WorkflowDatabase(const std::shared_ptr<Connection>& pobjConnection) : mobjAccess(pobjConnection), mobjCaseStore(mobjAccess) {}

  std::shared_ptr<Workflow> ReadWorkflow(std::int32_t plngRecId) override;
  std::int32_t SaveWorkFlow(const std::shared_ptr<Workflow>& pobjWorkflow);
  void DeleteWorkflow(const Variant& pvarRecId);
  std::int32_t NextId(const std::string& pstrTableName) { return mobjAccess.NextId(pstrTableName); }
  std::shared_ptr<PropertyCollection> ReadTokenProperties(std::int32_t plngPlaceRecId);
  std::shared_ptr<Collection<PropertyOption>> ReadPropertyOptions(std::int32_t plngPropertyRecId);
  void SaveTokenProperties(const std::shared_ptr<Place>& pobjPlace);
  Variant SaveWorkcase(const std::shared_ptr<WorkCase>& pobjWorkcase);
  Variant SaveToken(const std::shared_ptr<Token>& pobjToken);
  void SaveTokenPropertyValues(const std::shared_ptr<Token>& pobjToken);
  std::vector<std::shared_ptr<WorkCase>> ReadCases(const std::shared_ptr<Workflow>& pobjWorkflow);

  const Report& Failed() const { return mobjAccess.Failed(); }
  /// What failed since it was last taken.
  Report TakeReport() { return mobjAccess.TakeReport(); }

 private:
  friend class NestedReading;
  template <class Work>
  std::int32_t Save(SavedMarks& pobjMarks, Work&& pWork);

  DatabaseAccess mobjAccess;
  CaseStore mobjCaseStore;
  std::shared_ptr<Workflow> mobjNothingFound;  // keeps gobjWorkflow alive after a read that found nothing
};

}  // namespace vantrel

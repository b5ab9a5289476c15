#include "app/database/StoredRun.h"

#include <string>

#include "util/Date.h"

namespace vantrel {

namespace {

std::int32_t Count(Connection& pobjConnection, const std::string& pstrFrom) {
  const auto rows = pobjConnection.NewRecordset();
  rows->Open("SELECT COUNT(*) AS Amount FROM " + pstrFrom);
  return rows->Fields("Amount").Value.ToInt32();
}

}  // namespace

StoredRun CountStoredRun(Connection& pobjConnection, std::int32_t plngWorkflowId) {
  const std::string inWorkflow = "PlaceId IN (SELECT Id FROM Place WHERE WorkflowId = " + std::to_string(plngWorkflowId) + ")";
  StoredRun run;
  run.Cases = Count(pobjConnection, "Workcase WHERE Id IN (SELECT WorkcaseId FROM Token WHERE " + inWorkflow + ")");
  run.Tokens = Count(pobjConnection, "Token WHERE " + inWorkflow);
  run.TokensInPlaces =
      Count(pobjConnection, "Token WHERE ConsumeTransitionId = 0 AND DateConsumed = #" + Date().ToText() + "# AND " + inWorkflow);
  return run;
}

}  // namespace vantrel

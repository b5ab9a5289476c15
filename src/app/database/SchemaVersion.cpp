#include "app/database/SchemaVersion.h"

#include <optional>

#include "util/Error.h"

namespace vantrel {

namespace {

// The columns that reading a workflow needs.
constexpr const char* kNeeded[] = {
    ("SELECT Id, GUID, StartPlaceName, EndPlaceName, CaseTracking, KeepHistory, ShowGuards, ShowWeights, RunStyle, LockControls "
     "FROM Workflow"),
    "SELECT Id, WorkflowId, Name, Caption, Description, SelectionType, CtlTop, CtlLeft, EnabledImageKey FROM Place",
    "SELECT Id, WorkflowId, Name, Caption, SubflowId, OutputType, TriggerType, CtlTop, CtlLeft FROM Transition",
    "SELECT Id, WorkflowId, PlaceId, TransitionId, ArcDirection, Guard, Weight FROM Arc",
    "SELECT ArcId, X1, Y1, X2, Y2 FROM Vector",
    "SELECT Id, WorkflowId, Caption, [Top], [Left], Height, Width FROM Notation",
    "SELECT Id, PlaceId, Name, [Index], Type, [Value] FROM TokenProperty",
    "SELECT PropertyId, Prompt, [Value] FROM PropertyOption"};

// What is missing, in the engine's words; empty when the statement runs.
std::optional<std::string> LackOf(Connection& pobjConnection, const std::string& pstrSelect) {
  try {
    pobjConnection.NewRecordset()->Open(pstrSelect + " WHERE 1 = 0");
    return std::nullopt;
  } catch (const Error& error) {
    if (error.Number != vntErrStatement) throw;
    return error.Description;
  }
}

std::int32_t NumberIn(Connection& pobjConnection) {
  const auto rows = pobjConnection.NewRecordset();
  rows->Open("SELECT MAX(Version) AS Newest FROM vantrel_schema");
  const Variant& number = rows->Fields("Newest").Value;
  return number.IsNull() ? 0 : number.ToInt32();
}

}  // namespace

SchemaVersion FindSchemaVersion(Connection& pobjConnection) {
  if (!LackOf(pobjConnection, "SELECT Version FROM vantrel_schema")) return {SchemaKind::Ours, NumberIn(pobjConnection), {}, false};
  for (const char* needed : kNeeded) {
    if (auto lack = LackOf(pobjConnection, needed)) {
      return {SchemaKind::None, 0, std::move(*lack), !LackOf(pobjConnection, "SELECT * FROM Workflow")};
    }
  }
  // The first version had no number; no host has this table.
  if (!LackOf(pobjConnection, "SELECT Id FROM FormerTokenProperty")) return {SchemaKind::Ours, 1, {}, false};
  return {SchemaKind::Hosts, 0, {}, false};
}

}  // namespace vantrel

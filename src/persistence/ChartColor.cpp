#include "persistence/ChartColor.h"

#include <memory>
#include <string>

#include "persistence/SqlText.h"
#include "util/Error.h"

namespace vantrel {

namespace {

// Null without the table.
std::unique_ptr<Recordset> ColorRow(Connection& pobjConnection, std::int32_t plngWorkflowId) {
  SqlText sql;
  sql << "SELECT BackColor FROM vantrel_workflow WHERE WorkflowId = " << plngWorkflowId;
  auto row = pobjConnection.NewRecordset();
  try {
    row->Open(sql.Text());
  } catch (const Error& error) {
    if (error.Number != vntErrStatement) throw;
    return nullptr;
  }
  return row;
}

}  // namespace

std::optional<Color> ReadChartColor(Connection& pobjConnection, std::int32_t plngWorkflowId) {
  const auto row = ColorRow(pobjConnection, plngWorkflowId);
  if (!row || row->Eof()) return std::nullopt;
  return row->Fields("BackColor").Value.ToInt32();
}

bool SaveChartColor(Connection& pobjConnection, std::int32_t plngWorkflowId, Color plngColor) {
  const auto row = ColorRow(pobjConnection, plngWorkflowId);
  if (!row) return false;
  SqlText sql;
  if (row->Eof()) {
    sql << "INSERT INTO vantrel_workflow (WorkflowId, BackColor) VALUES (" << plngWorkflowId << ", " << plngColor << ")";
  } else {
    sql << "UPDATE vantrel_workflow SET BackColor = " << plngColor << " WHERE WorkflowId = " << plngWorkflowId;
  }
  pobjConnection.Execute(sql.Text());
  return true;
}

}  // namespace vantrel

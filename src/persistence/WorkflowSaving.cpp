#include "persistence/WorkflowSaving.h"

#include "persistence/ChartSaving.h"

namespace vantrel {

namespace {

std::string NameOfPlace(const Ref<Place>& pobjPlace) { return pobjPlace ? pobjPlace->Name() : std::string(); }

SqlText UpdateOf(const Workflow& pobjWorkflow) {
  const std::string start = NameOfPlace(pobjWorkflow.StartPlace), end = NameOfPlace(pobjWorkflow.EndPlace());
  SqlText sql;
  sql << "UPDATE Workflow SET ";
  sql << " StartPlaceName =" << SqlQuoted{start} << (pobjWorkflow.StartPlace ? ", " : ",");
  sql << " EndPlaceName = " << SqlQuoted{end} << (pobjWorkflow.EndPlace() ? ", " : ",");
  sql << " CaseTracking = " << pobjWorkflow.CaseTracking << ", ";
  sql << " KeepHistory = " << pobjWorkflow.KeepHistory << ", ";
  sql << " ShowGuards = " << pobjWorkflow.ShowGuards << ", ";
  sql << " ShowWeights = " << pobjWorkflow.ShowWeights << ", ";
  sql << " RunStyle = " << std::int32_t{pobjWorkflow.RunStyle} << ", ";
  sql << " LockControls = " << pobjWorkflow.LockControls;
  sql << " WHERE Id = " << pobjWorkflow.RecId;
  return sql;
}

SqlText InsertOf(const Workflow& pobjWorkflow, std::int32_t plngId) {
  const std::string start = NameOfPlace(pobjWorkflow.StartPlace), end = NameOfPlace(pobjWorkflow.EndPlace());
  SqlText sql;
  sql << "INSERT INTO Workflow"
      << "(Id, StartPlaceName, EndPlaceName, CaseTracking, KeepHistory, ShowGuards, ShowWeights, RunStyle, LockControls) "
      << "VALUES(" << plngId << ", ";
  sql << SqlQuoted{start} << "," << SqlQuoted{end} << ",";
  sql << pobjWorkflow.CaseTracking << ", " << pobjWorkflow.KeepHistory << ", ";
  sql << pobjWorkflow.ShowGuards << ", " << pobjWorkflow.ShowWeights << ", ";
  sql << std::int32_t{pobjWorkflow.RunStyle} << ", " << pobjWorkflow.LockControls << ")";
  return sql;
}

void InsertRow(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow) {
  const std::int32_t id = pobjAccess.NextId("Workflow");
  pobjAccess.UseCursor(vntUseServer);
  pobjAccess.ExecuteSQL(InsertOf(pobjWorkflow, id));
  pobjWorkflow.RecId = id;
  SqlText sql;
  sql << "SELECT GUID FROM Workflow WHERE Id = " << id;
  const auto row = pobjAccess.Rows(sql);
  if (!row->Eof()) pobjWorkflow.GUID = row->Fields("GUID").Value;
}

void UpdateRow(DatabaseAccess& pobjAccess, const Workflow& pobjWorkflow) {
  pobjAccess.UseCursor(vntUseServer);
  pobjAccess.ExecuteSQL(UpdateOf(pobjWorkflow));
}

void DeletePaths(DatabaseAccess& pobjAccess, std::int32_t plngWorkflowId) {
  SqlText select;
  select << "SELECT Id AS ArcId FROM Arc WHERE WorkflowId = " << plngWorkflowId;
  const auto rows = pobjAccess.Rows(select);
  std::vector<std::int32_t> ids;
  ForEachRow(*rows, [&](const Recordset& pobjRow) { ids.push_back(pobjRow.Fields("ArcId").Value.ToInt32()); });
  if (ids.empty()) return;
  SqlText sql;
  sql << "DELETE * FROM Vector WHERE ArcId IN " << SqlList{ids};
  pobjAccess.ExecuteSQL(sql);
}

}  // namespace

void SaveRowAndChart(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow, bool pblnHasChanged) {
  if (pobjWorkflow.RecId == 0) {
    InsertRow(pobjAccess, pobjWorkflow);
  } else if (pblnHasChanged) {
    UpdateRow(pobjAccess, pobjWorkflow);
  }
  SaveTransitions(pobjAccess, pobjWorkflow);
  SavePlaces(pobjAccess, pobjWorkflow);
  SaveArcs(pobjAccess, pobjWorkflow);
  SaveVectors(pobjAccess, pobjWorkflow);
  SaveNotations(pobjAccess, pobjWorkflow);
  pobjWorkflow.Dirty(false);
}

void DeleteRowAndChart(DatabaseAccess& pobjAccess, std::int32_t plngWorkflowId) {
  DeletePaths(pobjAccess, plngWorkflowId);
  for (const char* table : {"Arc", "Place", "Transition", "Notation"}) {
    SqlText sql;
    sql << "DELETE * FROM " << table << " WHERE WorkflowId = " << plngWorkflowId;
    pobjAccess.ExecuteSQL(sql);
  }
  SqlText sql;
  sql << "DELETE * FROM Workflow WHERE Id = " << plngWorkflowId;
  pobjAccess.ExecuteSQL(sql);
}

}  // namespace vantrel

#include "persistence/RowSaving.h"

#include "persistence/ChartSaving.h"

namespace vantrel {

void RowSaving::DeleteAllBut(const std::vector<std::int32_t>& pcolIds) const {
  SqlText sql;
  sql << "DELETE * FROM " << mstrTable << " WHERE WorkflowId = " << mlngWorkflowId;
  if (!pcolIds.empty()) sql << " AND " << mstrTable << ".Id NOT IN " << SqlList{pcolIds};
  mobjAccess.UseCursor(vntUseServer);
  mobjAccess.ExecuteSQL(sql);
}

std::unique_ptr<Recordset> RowSaving::OpenRow(std::int32_t plngId, const char* pstrNewSource) const {
  SqlText sql;
  if (plngId == 0 && pstrNewSource) {
    sql << pstrNewSource;
  } else {
    sql << "SELECT * FROM " << mstrTable << " WHERE Id = " << plngId;
  }
  mobjAccess.UseCursor(vntUseClient);
  auto row = mobjAccess.Rows(sql);
  if (plngId == 0) row->AddNew();
  return row;
}

bool RunStep(DatabaseAccess& pobjAccess, const std::function<void()>& pStep) {
  try {
    pStep();
    return true;
  } catch (const Error& error) {
    if (pobjAccess.IsTransactionLost()) throw;
    pobjAccess.Note(error);
    return false;
  }
}

}  // namespace vantrel

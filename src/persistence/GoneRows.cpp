#include "persistence/GoneRows.h"

#include <unordered_set>

#include "persistence/RowSaving.h"

namespace vantrel {

namespace {

using Ids = std::unordered_set<std::int32_t>;

bool HasItsRow(DatabaseAccess& pobjAccess, const Workflow& pobjWorkflow) {
  SqlText sql;
  sql << "SELECT GUID FROM Workflow WHERE Id = " << pobjWorkflow.RecId;
  const auto row = pobjAccess.Rows(sql);
  if (row->Eof()) return false;
  const Variant& stored = row->Fields("GUID").Value;
  const Variant& ours = pobjWorkflow.GUID;
  return stored.IsNull() || ours.IsNull() || ours.IsEmpty() || stored == ours;
}

Ids StoredIds(DatabaseAccess& pobjAccess, const char* pstrTable, std::int32_t plngWorkflowId) {
  SqlText sql;
  sql << "SELECT Id FROM " << pstrTable << " WHERE WorkflowId = " << plngWorkflowId;
  Ids ids;
  const auto rows = pobjAccess.Rows(sql);
  ForEachRow(*rows, [&](const Recordset& pobjRow) { ids.insert(pobjRow.Fields("Id").Value.ToInt32()); });
  return ids;
}

template <class T>
void ForgetRow(T& pobjItem) {
  MarkStored(pobjItem, 0);
  if constexpr (requires { pobjItem.Dirty(true); }) {
    pobjItem.Dirty(true);
  } else {
    pobjItem.Dirty = true;
  }
}

template <class T>
void ForgetAllBut(const Collection<T>& pcolItems, const Ids& pcolStored) {
  for (typename Collection<T>::Cursor cursor(pcolItems); T* item = cursor.Next();) {
    if (RecIdOf(*item) != 0 && !pcolStored.contains(RecIdOf(*item))) ForgetRow(*item);
  }
}

}  // namespace

void ForgetRows(Workflow& pobjWorkflow) {
  pobjWorkflow.RecId = 0;
  pobjWorkflow.GUID = Variant();
  ForgetAllBut(pobjWorkflow.Places, {});
  ForgetAllBut(pobjWorkflow.Transitions, {});
  ForgetAllBut(pobjWorkflow.Arcs, {});
  ForgetAllBut(pobjWorkflow.Notations, {});
}

void ForgetGoneRows(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow) {
  const std::int32_t id = pobjWorkflow.RecId;
  if (id == 0 || !HasItsRow(pobjAccess, pobjWorkflow)) return ForgetRows(pobjWorkflow);
  ForgetAllBut(pobjWorkflow.Places, StoredIds(pobjAccess, "Place", id));
  ForgetAllBut(pobjWorkflow.Transitions, StoredIds(pobjAccess, "Transition", id));
  ForgetAllBut(pobjWorkflow.Arcs, StoredIds(pobjAccess, "Arc", id));
  ForgetAllBut(pobjWorkflow.Notations, StoredIds(pobjAccess, "Notation", id));
}

}  // namespace vantrel

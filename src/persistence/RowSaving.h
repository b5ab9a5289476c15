// Writes objects of one kind as the rows of one table.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "persistence/DatabaseAccess.h"
#include "util/Collection.h"

namespace vantrel {

template <class T>
std::int32_t RecIdOf(const T& pobjItem) {
  if constexpr (requires { pobjItem.RecId(); }) {
    return pobjItem.RecId();
  } else {
    return pobjItem.RecId;
  }
}

/// Notes that the object is stored in the row with that id.
template <class T>
void MarkStored(T& pobjItem, std::int32_t plngId) {
  if constexpr (requires { pobjItem.RecId(); }) {
    pobjItem.RecId(plngId);
    pobjItem.Dirty(false);
  } else {
    pobjItem.RecId = plngId;
    pobjItem.Dirty = false;
  }
}

/// The rows of a workflow in one table.
class RowSaving {
 public:
  /// `pstrTable` is a literal of the program.
  RowSaving(DatabaseAccess& pobjAccess, const char* pstrTable, std::int32_t plngWorkflowId)
      : mobjAccess(pobjAccess), mstrTable(pstrTable), mlngWorkflowId(plngWorkflowId) {}

  /// Deletes the workflow's rows without an item in the collection; all of them when it is empty.
  template <class T>
  void DeleteOthers(const Collection<T>& pcolItems) const {
    std::vector<std::int32_t> ids;
    ids.reserve(static_cast<std::size_t>(pcolItems.Count()));
    for (typename Collection<T>::Cursor cursor(pcolItems); const T* item = cursor.Next();) ids.push_back(RecIdOf(*item));
    DeleteAllBut(ids);
  }
  /// Writes one object; `pAssign(row)` fills the columns. A new object gets a new row, opened from `pstrNewSource`, or from an empty
  /// selection if that is null.
  template <class T, class Assign>
  void SaveItem(T& pobjItem, Assign&& pAssign, const char* pstrNewSource = nullptr) const {
    const std::int32_t id = RecIdOf(pobjItem);
    const auto row = OpenRow(id, pstrNewSource);
    pAssign(*row);
    row->Update();
    MarkStored(pobjItem, row->Fields("Id").Value.ToInt32());
  }

 private:
  void DeleteAllBut(const std::vector<std::int32_t>& pcolIds) const;
  std::unique_ptr<Recordset> OpenRow(std::int32_t plngId, const char* pstrNewSource) const;

  DatabaseAccess& mobjAccess;
  const char* mstrTable;
  std::int32_t mlngWorkflowId;
};

}  // namespace vantrel

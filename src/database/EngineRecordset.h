// A row set in memory: all rows of a statement, and the one being added or changed.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "database/EngineConnection.h"
#include "database/Recordset.h"

namespace vantrel {

/// Fetches the rows of a table named alone, or the row with an id, only when they are read, so that adding a row takes one
/// statement. Assigned columns that were not written are forgotten when another row becomes current.
class EngineRecordset final : public Recordset {
 public:
  explicit EngineRecordset(EngineConnection& pobjConnection);

  void Open(const std::string& pstrSource) override;
  bool Eof() const override;
  void MoveNext() override;
  std::int32_t RecordCount() const override;
  Field Fields(std::string_view pstrName) const override;
  void AddNew() override;
  void Collect(std::string_view pstrName, const Variant& pvarValue) override;
  /// Throws Error 3021 without a current row. Writes nothing when the row has these values already and nobody can have changed it.
  void Update() override;

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  struct Assignment {
    std::size_t Column;
    Variant Value;
  };

  void CheckOpen() const;
  void CheckCurrent() const;
  bool CanWait();
  void Fetch() const;
  std::size_t Width() const { return mcolColumns->size(); }
  std::size_t RowCount() const { return Width() == 0 ? 0 : mcolValues.size() / Width(); }
  /// kNone for no such column.
  std::size_t FindColumn(std::string_view pstrName) const;
  std::size_t ColumnOf(std::string_view pstrName) const;
  const std::string& Table();
  void WriteNew(const std::vector<std::string>& pcolNames, std::vector<Variant> pcolValues);
  void WriteChanged(const std::vector<std::string>& pcolNames, std::vector<Variant> pcolValues);
  bool HasAssigned() const;
  void KeepAssigned(std::size_t plngRow);
  void ForgetAssigned();

  EngineConnection& mobjConnection;
  std::string mstrSource;
  std::string mstrTable;                                        // that rows are written to, once known
  std::shared_ptr<const std::vector<std::string>> mcolColumns;  // null before Open
  mutable std::vector<Variant> mcolValues;                      // row after row
  mutable std::size_t mlngRow = 0;                              // the current one, not counting a new one
  bool mblnWhole = false;                                       // the source is a table that is named alone
  mutable bool mblnFetched = false;                             // else mcolValues holds rows added here alone
  mutable std::int64_t mlngRowState = 0;                        // of the connection when the rows were fetched
  mutable std::size_t mlngHint = 0;                             // where the next column is looked for first
  bool mblnAdding = false;
  std::vector<Assignment> mcolAssigned;
  std::vector<std::size_t> mcolSlots;  // for each column where it is in mcolAssigned; empty while that is empty
};

}  // namespace vantrel

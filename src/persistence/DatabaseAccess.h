// Statements, row sets, new ids and transactions, for all parts of VNTRDB.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "database/Connection.h"
#include "persistence/Report.h"
#include "persistence/SavedMarks.h"
#include "persistence/SqlText.h"
#include "util/Error.h"

namespace vantrel {

/// The transaction was lost by a failure, and nothing more can be done in it. The failure is in the report.
class TransactionLost final : public Error {
 public:
  explicit TransactionLost(const Error& pobjReason) : Error(pobjReason) {}
};

/// The connection closed, and it could not be opened again.
class ReopeningFailed final : public Error {
 public:
  explicit ReopeningFailed(const Error& pobjReason) : Error(pobjReason) {}
};

/// Works on whatever connection its owner has at the time of the call.
class DatabaseAccess {
 public:
  explicit DatabaseAccess(const std::shared_ptr<Connection>& pobjConnection) : mobjConnection(pobjConnection) {}
  DatabaseAccess(const DatabaseAccess&) = delete;
  DatabaseAccess& operator=(const DatabaseAccess&) = delete;
  ~DatabaseAccess() = default;

  bool HasConnection() const { return mobjConnection != nullptr; }
  /// Error 91 without connection.
  vantrel::Connection& Connection() const;

  /// 0, or the number of the failure, which is in the report. A connection that turns out to be closed is opened again, but the
  /// statement is not repeated. Throws TransactionLost and ReopeningFailed.
  std::int32_t ExecuteSQL(const SqlText& pobjSql);
  /// Null on failure. The failure is in the report unless the connection cannot be used.
  std::unique_ptr<Recordset> GetRecordset(const std::string& pstrSql, std::int32_t plngCursorType = vntOpenForwardOnly);
  /// Never null: Error 91 instead, or the reason when the transaction is lost.
  std::unique_ptr<Recordset> Rows(const std::string& pstrSql);
  std::unique_ptr<Recordset> Rows(const SqlText& pobjSql) { return Rows(pobjSql.Text()); }
  std::int32_t NextId(const std::string& pstrTableName);
  void UseCursor(CursorLocationConstant pintLocation) { Connection().CursorLocation = pintLocation; }
  bool IsTransactionLost() const { return HasConnection() && mobjConnection->IsTransactionLost(); }

  /// Does the work in one write transaction. When the work throws an Error, what it wrote before stays; when the transaction
  /// cannot begin, is lost or cannot be committed, everything is undone, the marks are put back, and TransactionLost is thrown.
  void Write(SavedMarks& pobjMarks, const std::function<void()>& pWork);
  /// Does the work on one state of the database; without a connection that can be used, it finds no rows. It returns whether there was
  /// anything to read; if so, a lost transaction is an Error.
  void Read(const std::function<bool()>& pWork);

  /// Puts a failure into the report.
  void Note(const Error& pobjError) { mobjReport.Add(pobjError); }
  const Report& Failed() const { return mobjReport; }
  /// What failed since it was last taken.
  Report TakeReport() { return std::exchange(mobjReport, {}); }

 private:
  void Commit(vantrel::Connection& pobjConnection, SavedMarks& pobjMarks);
  /// Runs a step of the transaction itself, which is lost when the step fails.
  void NoteLoss(const std::function<void()>& pStep);
  static bool BeginReading(vantrel::Connection* pobjConnection);

  const std::shared_ptr<vantrel::Connection>& mobjConnection;
  Report mobjReport;
  std::optional<Error> mobjUnusable;  // why GetRecordset last gave nothing and reported nothing
};

/// Runs `pRow(row)` for every row from the current one on.
template <class Row>
void ForEachRow(Recordset& pobjRows, Row&& pRow) {
  for (; !pobjRows.Eof(); pobjRows.MoveNext()) pRow(pobjRows);
}

}  // namespace vantrel

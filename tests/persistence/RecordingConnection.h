#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "database/Connection.h"

namespace vantrel::test {

/// Not a database: records each call as a line, gives rows from a script and fails where it is told to.
///
///     [2] UPDATE ...            a statement, with the cursor location of that moment
///     [3] SELECT ... -> 1 row   a row set; " -> new" where a row is added
///       Name='A' Size=3         what is written by Update
class RecordingConnection final : public Connection {
 public:
  using Row = std::map<std::string, Variant>;

  std::string Log;
  /// Rows for the statements that begin with a text, without blanks at both ends; the first that fits. Other statements give no rows, but a
  /// selection by an Id other than 0 gives that row.
  std::vector<std::pair<std::string, std::vector<Row>>> Rows;
  struct Failure {
    std::string Piece;  // of the statement
    std::int32_t Number;
    std::string Description;
    bool LosesTransaction = false;
    int Passes = 0;  // so many are let through before
  };
  std::vector<Failure> Failures;
  std::string WhyNotBegun, WhyNotReopened, WhyNotCommitted;  ///< empty: it works
  int Transactions = 0, Commits = 0, Rollbacks = 0;

  void Execute(const std::string& pstrSql, std::int32_t plngOptions) override;
  void Open(const std::string& pstrAddress, const std::string& pstrUserId, const std::string& pstrPassword,
            std::int32_t plngOptions) override;
  std::unique_ptr<Recordset> NewRecordset() override;
  void BeginTrans(Transaction pTransaction) override;
  void CommitTrans() override;
  void RollbackTrans() noexcept override;
  bool IsTransactionLost() const override { return mblnLost; }

 private:
  friend class RecordedRows;
  void Note(const std::string& pstrLine) { Log += pstrLine + "\n"; }
  void FailIfTold(const std::string& pstrSql);
  std::vector<Row> RowsFor(const std::string& pstrSql) const;

  std::int32_t mlngLastId = 100;
  int mlngDepth = 0;
  bool mblnLost = false;
};

}  // namespace vantrel::test

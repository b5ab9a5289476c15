// A connection to any engine: the rules of connections and transactions, over the engine's adapter.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "database/Connection.h"
#include "database/Session.h"
#include "database/StatementShapes.h"

namespace vantrel {

class EngineConnection final : public Connection {
 public:
  /// Takes a session that is not open yet, or one that is open at the address.
  explicit EngineConnection(std::unique_ptr<Session> pobjSession, std::string pstrAddress = {});
  ~EngineConnection() override;

  void Execute(const std::string& pstrSql, std::int32_t plngOptions = kOptionsUnspecified) override;
  /// User and password belong in the address; throws Error 5 for parameters that are not empty. Does nothing on a connection that is
  /// open at that address.
  void Open(const std::string& pstrAddress = {}, const std::string& pstrUserId = {}, const std::string& pstrPassword = {},
            std::int32_t plngOptions = kOptionsUnspecified) override;
  std::unique_ptr<Recordset> NewRecordset() override;

  /// Opens a lost session again when it begins an outermost transaction.
  void BeginTrans(Transaction pTransaction) override;
  void CommitTrans() override;
  /// An inner one ends the engine's transaction at once; from then on the outer ones are lost.
  void RollbackTrans() noexcept override;
  bool IsTransactionLost() const override;

  /// The rows of a statement, in the order of their insertion where it has no order of its own.
  EngineRows Select(const std::string& pstrSql);
  /// For row sets: like the session's, but throws Error 3709 when the connection or the transaction is lost.
  std::int64_t Run(const EngineStatement& pobjStatement);
  std::int32_t Insert(const EngineStatement& pobjStatement);
  const vantrel::Dialect& Dialect() const { return mobjSession->Dialect(); }
  /// Stays the same while nothing can have changed a row: in a transaction that writes, until its next statement that is no query.
  /// 0 outside such a transaction, where others may write at any time.
  std::int64_t RowState() const { return mlngDepth > 0 && mKind == Transaction::Write ? mlngWritten : 0; }
  /// The columns of a table, asked for once.
  std::shared_ptr<const std::vector<std::string>> ColumnsOf(const std::string& pstrTable);

 private:
  /// The session for a statement. When there is none, throws the error of that number, with the reason.
  Session& Usable(std::int32_t plngNumber);
  EngineRows Query(const EngineStatement& pobjStatement);
  template <class Action>
  auto ForRowSet(Action pAction);
  std::string ReasonOfLoss() const;
  void BeginOutermost(Transaction pTransaction);
  void EndTransaction() noexcept;
  /// Notes why the transaction is lost, if it is.
  void NoteFailure(const std::string& pstrDescription);

  std::unique_ptr<Session> mobjSession;
  StatementShapes mShapes;
  std::map<std::string, std::shared_ptr<const std::vector<std::string>>> mcolColumns;  // by table
  std::string mstrAddress;
  std::string mstrLoss;  // why the transaction is lost
  std::int64_t mlngWritten = 1;
  std::int32_t mlngDepth = 0;
  Transaction mKind = Transaction::Read;
  bool mblnLost = false;
};

}  // namespace vantrel

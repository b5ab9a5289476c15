// Sessions with a PostgreSQL server.
#pragma once

#include <memory>
#include <string>

#include "database/PostgresDialect.h"
#include "database/Session.h"
#include "database/postgres/PostgresLink.h"
#include "database/postgres/PostgresStatements.h"

namespace vantrel {

/// A session over one link. Inside a transaction it sets a savepoint before every statement and rolls back to it when the server
/// refuses the statement. Otherwise the server would refuse everything that follows.
class PostgresSession final : public Session {
 public:
  /// In milliseconds, see PostgresOptions.
  explicit PostgresSession(int pintLockTimeout) : mLockTimeout(pintLockTimeout) {}

  const vantrel::Dialect& Dialect() const override { return mDialect; }
  /// An empty address means the previous one.
  void Open(const std::string& pstrAddress) override;
  void Close() noexcept override;
  bool IsOpen() const override { return mLink && !mLink->IsLost(); }

  std::int64_t Run(const EngineStatement& pobjStatement) override;
  EngineRows Query(const EngineStatement& pobjStatement) override;
  std::int32_t Insert(const EngineStatement& pobjStatement) override;
  void RunScript(const std::string& pstrScript) override;

  void Begin(Transaction pTransaction) override;
  void Commit() override;
  void Rollback() noexcept override;
  bool IsInTransaction() const override { return mIsInTransaction && IsOpen(); }

 private:
  PostgresLink& Link();
  PostgresResult Execute(const EngineStatement& pobjStatement);
  PostgresFlight Try(const EngineStatement& pobjStatement);
  void QueueSavepoint();
  void Undo();
  [[noreturn]] void Refuse(const PostgresResult& pobjRefusal) const;

  const int mLockTimeout;
  PostgresDialect mDialect;
  std::string mAddress;
  std::unique_ptr<PostgresLink> mLink;
  PostgresStatements mStatements;
  bool mIsInTransaction = false;
  bool mHasWritten = false;  // since the savepoint was set
};

}  // namespace vantrel

// The adapter of SQLite.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <sqlite3.h>

#include "database/Session.h"
#include "database/SqliteDialect.h"
#include "database/sqlite/Sqlite.h"
#include "database/sqlite/SqliteFileState.h"
#include "database/sqlite/SqliteStatementCache.h"

namespace vantrel {

/// The address is the file's path. Write-ahead log, so that readers and a writer do not wait for each other; every commit is on
/// the disk when it returns.
class SqliteSession final : public Session {
 public:
  explicit SqliteSession(SqliteOptions pOptions) : mOptions(pOptions) {}
  ~SqliteSession() override { Close(); }

  const vantrel::Dialect& Dialect() const override { return mDialect; }
  void Open(const std::string& pstrAddress) override;
  /// Like Open, but makes the file if there is none. A new file has no write-ahead log yet: a commit writes everything into the file itself
  /// and fails when the disk is full.
  void OpenOrMake(const std::string& pstrAddress);
  void Close() noexcept override;
  bool IsOpen() const override { return mobjDatabase != nullptr; }

  std::int64_t Run(const EngineStatement& pobjStatement) override;
  EngineRows Query(const EngineStatement& pobjStatement) override;
  std::int32_t Insert(const EngineStatement& pobjStatement) override;
  void RunScript(const std::string& pstrScript) override;
  /// Outside a transaction. They are checked from the opening on.
  void CheckForeignKeys(bool pblnOn);

  void Begin(Transaction pTransaction) override;
  void Commit() override;
  void Rollback() noexcept override;
  bool IsInTransaction() const override;

 private:
  void OpenFile(const std::string& pstrName, int plngFlags);
  void OpenToRead();
  bool HasLog() const;
  void OpenAsItLies();
  /// Opens a file that was opened as it lies anew when somebody has written to it since. An Error inside a transaction.
  void FollowFile();
  Error WrittenMeanwhile() const;
  void Configure();
  void UseWriteAheadLog();
  /// For statements of this class alone; those of callers have their values taken out by the dialect.
  void RunText(const char* pstrText);
  void RunPrepared(const EngineStatement& pobjStatement, EngineRows* pobjRows);
  void RunIn(SqliteStatement& pobjStatement, const EngineStatement& pobjValues, EngineRows* pobjRows);
  void Check(int plngResult);

  SqliteDialect mDialect;
  SqliteOptions mOptions;
  std::string mstrPath;
  sqlite3* mobjDatabase = nullptr;
  SqliteStatementCache mStatements;
  std::optional<SqliteFileState> mobjAsItLies;  // the state of a file that is read without any lock
  bool mblnReadsOnly = false;                   // in a transaction that only reads
  bool mblnChanged = false;                     // the last statement was one that changes something
};

}  // namespace vantrel

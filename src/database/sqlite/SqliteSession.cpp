#include "database/sqlite/SqliteSession.h"

#include <cstdio>
#include <filesystem>
#include <limits>
#include <optional>

#include "database/sqlite/SqliteError.h"
#include "util/Error.h"

namespace vantrel {

namespace {

constexpr const char* kReadSomething = "SELECT COUNT(*) FROM sqlite_schema";
constexpr int kFlags = SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;

// SQLite treats names such as ":memory:" and "file:..." specially, but never an absolute path.
std::string NameOf(const std::string& pstrPath) { return std::filesystem::absolute(pstrPath).string(); }

bool CanWrite(const std::string& pstrPath) {
  std::FILE* const file = std::fopen(pstrPath.c_str(), "r+b");
  if (file != nullptr) std::fclose(file);
  return file != nullptr;
}

// The log and its index take 36 kilobytes at once. The index is mapped into memory: where a file system with small blocks has no room for
// it, the process would end with a bus error.
bool HasRoomForLog(const std::string& pstrPath) {
  constexpr std::uintmax_t kNeeded = 64 * 1024;
  std::error_code unknown;
  if (std::filesystem::exists(pstrPath + "-shm", unknown)) return true;
  const auto space = std::filesystem::space(std::filesystem::path(NameOf(pstrPath)).parent_path(), unknown);
  return unknown || space.available >= kNeeded;
}

// A path as the URI that SQLite takes.
std::string UriOf(const std::string& pstrPath) {
  constexpr std::string_view kHexDigits = "0123456789ABCDEF";
  std::string uri = "file:";
  for (const char c : NameOf(pstrPath)) {
    if (c == '%' || c == '?' || c == '#') {
      const auto byte = static_cast<unsigned char>(c);
      uri.append({'%', kHexDigits[byte >> 4], kHexDigits[byte & 15]});
    } else {
      uri.push_back(c);
    }
  }
  return uri;
}

}  // namespace

void SqliteSession::Open(const std::string& pstrAddress) {
  Close();
  mstrPath = pstrAddress;
  std::error_code ignored;
  // SQLite would open an empty file as a database without tables, and an empty name as a temporary database.
  if (std::filesystem::is_regular_file(mstrPath, ignored) && std::filesystem::file_size(mstrPath, ignored) == 0) {
    throw SqliteError(nullptr, SQLITE_NOTADB, mstrPath);
  }
  if (mstrPath.empty()) throw SqliteError(nullptr, SQLITE_CANTOPEN, mstrPath);
  try {
    OpenFile(NameOf(mstrPath), SQLITE_OPEN_READWRITE);
    OpenToRead();
  } catch (...) {
    Close();
    throw;
  }
}

void SqliteSession::OpenOrMake(const std::string& pstrAddress) {
  Close();
  mstrPath = pstrAddress;
  OpenFile(NameOf(mstrPath), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

void SqliteSession::OpenFile(const std::string& pstrName, int plngFlags) {
  const int result = sqlite3_open_v2(pstrName.c_str(), &mobjDatabase, plngFlags | kFlags, nullptr);
  if (result != SQLITE_OK) {
    const std::string text = SqliteError(mobjDatabase, result, mstrPath).Description;
    Close();
    throw Error(vntErrDatabase, text);
  }
  Configure();
}

void SqliteSession::Configure() {
  sqlite3_busy_timeout(mobjDatabase, mOptions.BusyTimeout);
  // An unknown name is an error and not a text.
  sqlite3_db_config(mobjDatabase, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(mobjDatabase, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  CheckForeignKeys(true);
  sqlite3_db_config(mobjDatabase, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
}

// Reads something: that shows whether the file is a database.
void SqliteSession::OpenToRead() {
  const bool canLie = UsesSqliteLog(mstrPath);
  if (canLie && !HasLog() && !CanWrite(mstrPath)) return OpenAsItLies();
  const bool hasRoom = HasRoomForLog(mstrPath);
  if (canLie && !hasRoom) throw SqliteError(nullptr, SQLITE_FULL, mstrPath);
  try {
    if (hasRoom) UseWriteAheadLog();
    RunText(kReadSomething);
  } catch (const Error&) {
    const int problem = sqlite3_errcode(mobjDatabase) & 0xFF;
    if (problem != SQLITE_CANTOPEN && problem != SQLITE_READONLY) throw;
    if (HasLog()) {
      throw Error(vntErrDatabase,
                  "The database \"" + mstrPath + "\" cannot be read: its newest changes are in a log that you may not write to.");
    }
    if (!canLie) throw;
    OpenAsItLies();
  }
}

bool SqliteSession::HasLog() const {
  std::error_code none;
  const auto size = std::filesystem::file_size(mstrPath + "-wal", none);
  return !none && size > 0;
}

// Without a log the file is complete. To read it, SQLite would make an empty log and its index. They would belong to the reader and
// lock out the owner of the file. Read in this way, SQLite takes no lock and keeps what it has read, so every statement looks whether
// somebody has written meanwhile.
void SqliteSession::OpenAsItLies() {
  Close();
  const SqliteFileState state(mstrPath);
  if (HasLog()) throw WrittenMeanwhile();
  OpenFile(UriOf(mstrPath) + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
  RunText(kReadSomething);
  if (!(SqliteFileState(mstrPath) == state)) throw WrittenMeanwhile();
  mobjAsItLies = state;
}

void SqliteSession::FollowFile() {
  if (!mobjAsItLies || SqliteFileState(mstrPath) == *mobjAsItLies) return;
  if (IsInTransaction()) throw WrittenMeanwhile();
  Open(std::string(mstrPath));
}

Error SqliteSession::WrittenMeanwhile() const {
  return {vntErrDatabase, "The database \"" + mstrPath + "\" cannot be read now: another program is writing to it."};
}

// A file without a write-ahead log works as well, only slower, so do not wait to give it one.
void SqliteSession::UseWriteAheadLog() {
  if (sqlite3_db_readonly(mobjDatabase, "main") == 1) return;
  sqlite3_busy_timeout(mobjDatabase, 0);
  sqlite3_exec(mobjDatabase, "PRAGMA journal_mode = WAL", nullptr, nullptr, nullptr);
  sqlite3_busy_timeout(mobjDatabase, mOptions.BusyTimeout);
  RunText("PRAGMA synchronous = FULL");
}

void SqliteSession::Close() noexcept {
  mStatements.Clear();
  sqlite3_close_v2(mobjDatabase);
  mobjDatabase = nullptr;
  mobjAsItLies.reset();
  mblnReadsOnly = false;
}

std::int64_t SqliteSession::Run(const EngineStatement& pobjStatement) {
  RunPrepared(pobjStatement, nullptr);
  return mblnChanged ? sqlite3_changes64(mobjDatabase) : 0;
}

EngineRows SqliteSession::Query(const EngineStatement& pobjStatement) {
  EngineRows rows;
  RunPrepared(pobjStatement, &rows);
  return rows;
}

std::int32_t SqliteSession::Insert(const EngineStatement& pobjStatement) {
  RunPrepared(pobjStatement, nullptr);
  const std::int64_t newId = sqlite3_last_insert_rowid(mobjDatabase);
  if (newId <= std::numeric_limits<std::int32_t>::max()) return static_cast<std::int32_t>(newId);
  RunText(("DELETE FROM " + pobjStatement.Table + " WHERE rowid = " + std::to_string(newId)).c_str());
  throw Error(vntErrOverflow, "The table " + pobjStatement.Table + " has no id left: ids have 32 bits.");
}

void SqliteSession::RunPrepared(const EngineStatement& pobjStatement, EngineRows* pobjRows) {
  if (!IsOpen()) throw Error(vntErrObjectClosed);
  FollowFile();
  int result = SQLITE_OK;
  if (pobjStatement.IsReusable) {
    SqliteStatement* const statement = mStatements.Find(mobjDatabase, pobjStatement.Text, result);
    Check(result);
    RunIn(*statement, pobjStatement, pobjRows);
  } else {
    SqliteStatement statement(mobjDatabase, pobjStatement.Text, false, result);
    Check(result);
    RunIn(statement, pobjStatement, pobjRows);
  }
}

void SqliteSession::RunIn(SqliteStatement& pobjStatement, const EngineStatement& pobjValues, EngineRows* pobjRows) {
  mblnChanged = !pobjStatement.IsReadOnly();
  if (mblnReadsOnly && mblnChanged) throw Error(vntErrStatement, "Nothing can be changed in a transaction that only reads.");
  const int result = pobjStatement.Run(pobjValues.Parameters, pobjRows);
  // What was read, or found damaged, may be half of one state and half of another.
  if (mobjAsItLies && !(SqliteFileState(mstrPath) == *mobjAsItLies)) throw WrittenMeanwhile();
  Check(result);
}

void SqliteSession::RunScript(const std::string& pstrScript) {
  const bool isOutermost = !IsInTransaction();
  if (isOutermost) Begin(Transaction::Write);
  try {
    RunText(pstrScript.c_str());
    if (isOutermost) Commit();
  } catch (...) {
    if (isOutermost) Rollback();
    throw;
  }
}

void SqliteSession::CheckForeignKeys(bool pblnOn) { sqlite3_db_config(mobjDatabase, SQLITE_DBCONFIG_ENABLE_FKEY, pblnOn ? 1 : 0, nullptr); }

void SqliteSession::RunText(const char* pstrText) { Check(sqlite3_exec(mobjDatabase, pstrText, nullptr, nullptr, nullptr)); }

void SqliteSession::Begin(Transaction pTransaction) {
  if (!IsOpen()) throw Error(vntErrObjectClosed);
  if (pTransaction == Transaction::Write) {
    // SQLite itself would begin the transaction and refuse every change in it.
    if (sqlite3_db_readonly(mobjDatabase, "main") == 1) throw SqliteError(nullptr, SQLITE_READONLY, mstrPath);
    return RunText("BEGIN IMMEDIATE");
  }
  FollowFile();
  RunText("BEGIN");
  try {
    RunText(kReadSomething);  // from here on the state is the same one
  } catch (...) {
    Rollback();
    throw;
  }
  mblnReadsOnly = true;
}

void SqliteSession::Commit() {
  mblnReadsOnly = false;
  RunText("COMMIT");
}

void SqliteSession::Rollback() noexcept {
  mblnReadsOnly = false;
  if (IsInTransaction()) sqlite3_exec(mobjDatabase, "ROLLBACK", nullptr, nullptr, nullptr);
}

bool SqliteSession::IsInTransaction() const { return mobjDatabase != nullptr && sqlite3_get_autocommit(mobjDatabase) == 0; }

void SqliteSession::Check(int plngResult) {
  if (plngResult != SQLITE_OK) throw SqliteError(mobjDatabase, plngResult, mstrPath);
}

}  // namespace vantrel

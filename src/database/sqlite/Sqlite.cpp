#include "database/sqlite/Sqlite.h"

#include <filesystem>
#include <random>
#include <string>

#include "database/EngineConnection.h"
#include "database/sqlite/SqliteSession.h"
#include "util/Error.h"

namespace vantrel {

namespace {

namespace fs = std::filesystem;

bool HasTables(SqliteSession& pobjSession) {
  const EngineStatement question{"SELECT name FROM sqlite_schema WHERE type = 'table' AND lower(name) = 'workflow'", {}, false};
  return !pobjSession.Query(question).Values.empty();
}

Error HasThemAlready(const std::string& pstrPath) { return {vntErrDatabase, "The database \"" + pstrPath + "\" has the tables already."}; }

void MakeTables(SqliteSession& pobjSession, const std::string& pstrPath, const std::string& pstrSchema) {
  pobjSession.OpenOrMake(pstrPath);
  pobjSession.Begin(Transaction::Write);
  if (HasTables(pobjSession)) throw HasThemAlready(pstrPath);
  pobjSession.RunScript(pstrSchema);
  pobjSession.Commit();
}

/// A temporary file beside the one to be made. Removed with this object.
class FileBeside {
 public:
  explicit FileBeside(const std::string& pstrPath) : mstrPath(pstrPath + "." + std::to_string(std::random_device()()) + ".new") {}
  ~FileBeside() {
    std::error_code ignored;
    for (const char* tail : {"", "-journal", "-wal", "-shm"}) fs::remove(mstrPath + tail, ignored);
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;
  const std::string& Path() const { return mstrPath; }

 private:
  std::string mstrPath;
};

// Gives the file its name. Of several processes that try at the same moment, only the first succeeds.
void Rename(const std::string& pstrFrom, const std::string& pstrTo) {
  std::error_code problem;
  fs::create_hard_link(pstrFrom, pstrTo, problem);
  if (!problem) return;
  if (fs::exists(pstrTo)) throw HasThemAlready(pstrTo);
  fs::rename(pstrFrom, pstrTo);  // a file system without links
}

std::string WithName(std::string pstrText, const std::string& pstrName, const std::string& pstrOther) {
  const auto at = pstrText.find(pstrName);
  return at == std::string::npos ? pstrText : pstrText.replace(at, pstrName.size(), pstrOther);
}

// The file gets its name only when it is complete, so that no other process can store something in it too early.
void MakeFile(const std::string& pstrPath, const std::string& pstrSchema) {
  const FileBeside file(pstrPath);
  {
    SqliteSession session({});
    try {
      MakeTables(session, file.Path(), pstrSchema);
    } catch (const Error& error) {
      throw Error(error.Number, WithName(error.Description, file.Path(), pstrPath));
    }
  }
  try {
    Rename(file.Path(), pstrPath);
  } catch (const fs::filesystem_error& error) {
    throw Error(vntErrDatabase, "The database \"" + pstrPath + "\" cannot be made: " + error.code().message() + ".");
  }
}

std::string Inserted(std::string pstrScript, const std::string& pstrSchema) {
  constexpr std::string_view kMark = "-- (schema)\n";
  const auto at = pstrScript.find(kMark);
  return at == std::string::npos ? pstrScript : pstrScript.replace(at, kMark.size(), pstrSchema);
}

}  // namespace

std::shared_ptr<Connection> OpenSqlite(const std::string& pstrPath, SqliteOptions pOptions) {
  auto session = std::make_unique<SqliteSession>(pOptions);
  session->Open(pstrPath);
  return std::make_shared<EngineConnection>(std::move(session), pstrPath);
}

void CreateSqlite(const std::string& pstrPath, const std::string& pstrSchema) {
  if (!pstrPath.empty() && !fs::exists(pstrPath)) return MakeFile(pstrPath, pstrSchema);
  SqliteSession session({});
  try {
    MakeTables(session, pstrPath, pstrSchema);
  } catch (...) {
    session.Rollback();
    throw;
  }
}

void UpgradeSqlite(const std::string& pstrPath, const std::string& pstrScript, const std::string& pstrSchema) {
  SqliteSession session({});
  session.Open(pstrPath);
  session.CheckForeignKeys(false);
  session.Begin(Transaction::Write);
  session.RunScript(Inserted(pstrScript, pstrSchema));
  const auto faults = session.Query({"SELECT \"table\" FROM pragma_foreign_key_check", {}, false});
  if (!faults.Values.empty()) {
    throw Error(vntErrDatabase, "The database \"" + pstrPath + "\" has rows in " + faults.Values.front().ToText() + " that no key allows.");
  }
  session.Commit();
}

}  // namespace vantrel

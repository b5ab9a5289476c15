#include "database/sqlite/Sqlite.h"

#include <cstdio>
#include <filesystem>

#include "database/EngineConnection.h"
#include "database/sqlite/SqliteSession.h"
#include "util/Error.h"

namespace vantrel {

namespace {

bool HasTables(SqliteSession& pobjSession) {
  const EngineStatement question{"SELECT name FROM sqlite_schema WHERE type = 'table' AND lower(name) = 'workflow'", {}, false};
  return !pobjSession.Query(question).Values.empty();
}

void MakeTables(SqliteSession& pobjSession, const std::string& pstrPath, const std::string& pstrSchema) {
  pobjSession.OpenOrMake(pstrPath);
  pobjSession.Begin(Transaction::Write);
  if (HasTables(pobjSession)) throw Error(vntErrDatabase, "The database \"" + pstrPath + "\" has the tables already.");
  pobjSession.RunScript(pstrSchema);
  pobjSession.Commit();
}

// True for the one who made the file: nobody else may take it away again.
bool MakeFile(const std::string& pstrPath) {
  std::FILE* const file = std::fopen(pstrPath.c_str(), "wx");
  if (file != nullptr) std::fclose(file);
  return file != nullptr;
}

}  // namespace

std::shared_ptr<Connection> OpenSqlite(const std::string& pstrPath, SqliteOptions pOptions) {
  auto session = std::make_unique<SqliteSession>(pOptions);
  session->Open(pstrPath);
  return std::make_shared<EngineConnection>(std::move(session), pstrPath);
}

void CreateSqlite(const std::string& pstrPath, const std::string& pstrSchema) {
  const bool isNew = MakeFile(pstrPath);
  SqliteSession session({});
  try {
    MakeTables(session, pstrPath, pstrSchema);
  } catch (...) {
    session.Rollback();
    session.Close();
    std::error_code ignored;
    if (isNew) std::filesystem::remove(pstrPath, ignored);
    throw;
  }
}

}  // namespace vantrel

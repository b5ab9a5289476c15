#include "app/database/Engines.h"

#include "app/database/SchemaText.h"
#include "util/Error.h"

#if VANTREL_HAS_SQLITE
#include "database/sqlite/Sqlite.h"
#endif
#if VANTREL_HAS_POSTGRES
#include "database/postgres/Postgres.h"
#endif

namespace vantrel {

namespace {

#if !VANTREL_HAS_SQLITE
std::shared_ptr<Connection> OpenSqlite(const std::string&) { throw Error(vntErrDatabase, "this program was built without SQLite"); }
void CreateSqlite(const std::string& pstrPath, const std::string&) { OpenSqlite(pstrPath); }
void UpgradeSqlite(const std::string& pstrPath, const std::string&, const std::string&) { OpenSqlite(pstrPath); }
#endif
#if !VANTREL_HAS_POSTGRES
std::shared_ptr<Connection> OpenPostgres(const std::string&) { throw Error(vntErrDatabase, "this program was built without PostgreSQL"); }
void CreatePostgres(const std::string& pstrAddress, const std::string&) { OpenPostgres(pstrAddress); }
void UpgradePostgres(const std::string& pstrAddress, const std::string&) { OpenPostgres(pstrAddress); }
#endif

}  // namespace

std::shared_ptr<Connection> OpenConnection(const DatabaseAddress& pobjAddress) {
  return pobjAddress.IsServer() ? OpenPostgres(pobjAddress.Text()) : OpenSqlite(pobjAddress.Text());
}

void CreateDatabase(const DatabaseAddress& pobjAddress) {
  if (pobjAddress.IsServer()) {
    CreatePostgres(pobjAddress.Text(), std::string(PostgresSchema()));
  } else {
    CreateSqlite(pobjAddress.Text(), std::string(SqliteSchema()));
  }
}

void UpgradeDatabase(const DatabaseAddress& pobjAddress) {
  if (pobjAddress.IsServer()) {
    UpgradePostgres(pobjAddress.Text(), std::string(PostgresUpgrade()));
  } else {
    UpgradeSqlite(pobjAddress.Text(), std::string(SqliteUpgrade()), std::string(SqliteSchema()));
  }
}

}  // namespace vantrel

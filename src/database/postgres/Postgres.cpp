#include "database/postgres/Postgres.h"

#include "database/EngineConnection.h"
#include "database/postgres/PostgresAddress.h"
#include "database/postgres/PostgresSession.h"
#include "util/Error.h"

namespace vantrel {

std::shared_ptr<Connection> OpenPostgres(const std::string& pstrAddress, PostgresOptions pOptions) {
  auto connection = std::make_shared<EngineConnection>(std::make_unique<PostgresSession>(pOptions.LockTimeout));
  connection->Open(pstrAddress);
  return connection;
}

void CreatePostgres(const std::string& pstrAddress, const std::string& pstrSchema) {
  PostgresSession session(PostgresOptions().LockTimeout);
  session.Open(pstrAddress);
  session.Begin(Transaction::Write);
  const auto existing = session.Query({"SELECT to_regclass('workflow')", {}, false});
  if (!existing.Values.at(0).IsNull()) {
    throw Error(vntErrDatabase, "The database " + ShownAddress(pstrAddress) + " has the tables already.");
  }
  session.RunScript(pstrSchema);
  session.Commit();
}

void UpgradePostgres(const std::string& pstrAddress, const std::string& pstrScript) {
  PostgresSession session(PostgresOptions().LockTimeout);
  session.Open(pstrAddress);
  session.Begin(Transaction::Write);
  session.RunScript(pstrScript);
  session.Commit();
}

}  // namespace vantrel

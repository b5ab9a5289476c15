// PostgreSQL databases, and engines that speak its protocol: makes connections to them.
#pragma once

#include <memory>
#include <string>

#include "database/Connection.h"

namespace vantrel {

struct PostgresOptions {
  int LockTimeout = 10'000;  ///< milliseconds that a statement, or a writing transaction that begins, waits for others
};

/// Addresses are `postgresql://user@host:port/database` or `postgres://...`, with libpq's other options after a question mark.
/// libpq's environment variables and password file supply what is missing. A connection waits 10 seconds for its server unless the
/// address has `connect_timeout`. No description of an Error shows a password.
///
/// Writing transactions wait for one another, whatever they write, and for the row locks of other programs.
/// Throws Error vntErrDatabase, with the address, when the database cannot be reached.
std::shared_ptr<Connection> OpenPostgres(const std::string& pstrAddress, PostgresOptions pOptions = {});

/// Makes the tables that the schema text creates, all or none of them. Throws Error vntErrDatabase when the database has one
/// of the system's tables already. The user of the address needs the right to create tables.
void CreatePostgres(const std::string& pstrAddress, const std::string& pstrSchema);

/// Runs the script in one transaction, for which other writers wait. Throws an Error for a refused statement and then changes nothing.
void UpgradePostgres(const std::string& pstrAddress, const std::string& pstrScript);

}  // namespace vantrel

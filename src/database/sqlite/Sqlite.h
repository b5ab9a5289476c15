// Databases that are one file on this machine.
#pragma once

#include <memory>
#include <string>

#include "database/Connection.h"

namespace vantrel {

struct SqliteOptions {
  int BusyTimeout = 10'000;  ///< milliseconds that a statement waits while others lock the file
};

/// Opens an existing database file; one that may not be written can still be read. Throws Error vntErrDatabase, which names the
/// file, for one that is missing, damaged or not a database.
std::shared_ptr<Connection> OpenSqlite(const std::string& pstrPath, SqliteOptions pOptions = {});

/// Makes the tables of the schema, and the file if there is none: all or nothing. A failure leaves no file.
/// Also throws Error vntErrDatabase when the database has the tables already.
void CreateSqlite(const std::string& pstrPath, const std::string& pstrSchema);

/// Runs the script over the tables of an existing file, with the schema in the place of its line "-- (schema)": all or nothing.
/// Foreign keys are checked once, at the end. Throws an Error for a refused statement and for rows that no key allows.
void UpgradeSqlite(const std::string& pstrPath, const std::string& pstrScript, const std::string& pstrSchema);

}  // namespace vantrel

// What SQLite reports, in plain words and with the file's name.
#pragma once

#include <string>

#include <sqlite3.h>

#include "util/Error.h"

namespace vantrel {

/// vntErrStatement with SQLite's own words for a refused statement; vntErrDatabase for a fault of the file. The session may be null.
Error SqliteError(sqlite3* pobjDatabase, int plngResult, const std::string& pstrPath);

}  // namespace vantrel

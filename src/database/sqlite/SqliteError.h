// What SQLite reports, in plain words and with the file's name.
#pragma once

#include <string>

#include <sqlite3.h>

#include "util/Error.h"

namespace vantrel {

/// vntErrStatement with SQLite's own words where it refused a statement; vntErrDatabase where the file is what is wrong. The
/// session may be null.
Error SqliteError(sqlite3* pobjDatabase, int plngResult, const std::string& pstrPath);

}  // namespace vantrel

#include "database/sqlite/SqliteError.h"

#include <filesystem>

namespace vantrel {

namespace {

std::string WhyItCannotBeOpened(const std::string& pstrPath) {
  std::error_code ignored;
  const auto status = std::filesystem::status(pstrPath, ignored);
  if (std::filesystem::is_directory(status)) return "it is a folder";
  const auto folder = std::filesystem::absolute(pstrPath, ignored).parent_path();
  if (!std::filesystem::exists(folder, ignored)) return "there is no folder \"" + folder.string() + "\"";
  if (status.type() == std::filesystem::file_type::not_found) return "there is no such file, or its folder cannot be written";
  return "access is denied";
}

}  // namespace

Error SqliteError(sqlite3* pobjDatabase, int plngResult, const std::string& pstrPath) {
  const std::string file = "The database \"" + pstrPath + "\" ";
  const std::string words = pobjDatabase != nullptr ? sqlite3_errmsg(pobjDatabase) : sqlite3_errstr(plngResult);
  switch (plngResult & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return {vntErrDatabase, file + "is locked: another program is writing to it."};
    case SQLITE_READONLY:
      return {vntErrDatabase, file + "cannot be changed: it is read-only."};
    case SQLITE_FULL:
      return {vntErrDatabase, file + "cannot be written: the disk is full."};
    case SQLITE_CORRUPT:
      return {vntErrDatabase, file + "is damaged (" + words + ")."};
    case SQLITE_NOTADB:
      return {vntErrDatabase, "The file \"" + pstrPath + "\" is not a database."};
    case SQLITE_CANTOPEN:
      return {vntErrDatabase, file + "cannot be opened: " + WhyItCannotBeOpened(pstrPath) + "."};
    case SQLITE_IOERR:
    case SQLITE_PROTOCOL:
    case SQLITE_AUTH:
    case SQLITE_PERM:
      return {vntErrDatabase, file + "cannot be read or written (" + words + ")."};
    default:
      return {vntErrStatement, words};
  }
}

}  // namespace vantrel

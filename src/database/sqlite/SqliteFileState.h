// Tells whether anybody has written to a file of SQLite's.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace vantrel {

/// Two states are equal when nobody wrote to the file or its log in between. A file that was written a moment ago is waited for until
/// the clock of the file system could tell another write apart.
class SqliteFileState {
 public:
  explicit SqliteFileState(const std::string& pstrPath);

  bool operator==(const SqliteFileState&) const = default;

 private:
  struct Stamp {
    bool IsThere = false;
    std::uintmax_t Size = 0;
    std::filesystem::file_time_type Written;
    bool operator==(const Stamp&) const = default;
  };
  static Stamp StampOf(const std::string& pstrPath);

  Stamp mFile, mLog;
};

/// True for a file whose changes go through a write-ahead log.
bool UsesSqliteLog(const std::string& pstrPath);

}  // namespace vantrel

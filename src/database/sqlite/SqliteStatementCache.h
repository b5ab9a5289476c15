// Prepared statements that are likely to come again.
#pragma once

#include <string>
#include <unordered_map>

#include "database/sqlite/SqliteStatement.h"

namespace vantrel {

class SqliteStatementCache {
 public:
  /// The statement of that text, or null when SQLite refuses it. Owned by the cache and valid until the next call.
  SqliteStatement* Find(sqlite3* pobjDatabase, const std::string& pstrText, int& plngResult);
  void Clear() { mcolStatements.clear(); }

 private:
  // A save has about forty shapes. Only a program that writes values into names has more than this.
  static constexpr std::size_t kMost = 200;

  std::unordered_map<std::string, SqliteStatement> mcolStatements;
};

}  // namespace vantrel

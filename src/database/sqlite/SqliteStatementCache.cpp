#include "database/sqlite/SqliteStatementCache.h"

#include <utility>

namespace vantrel {

SqliteStatement* SqliteStatementCache::Find(sqlite3* pobjDatabase, const std::string& pstrText, int& plngResult) {
  plngResult = SQLITE_OK;
  const auto found = mcolStatements.find(pstrText);
  if (found != mcolStatements.end()) return &found->second;

  SqliteStatement statement(pobjDatabase, pstrText, true, plngResult);
  if (plngResult != SQLITE_OK) return nullptr;
  if (mcolStatements.size() >= kMost) Clear();
  return &mcolStatements.emplace(pstrText, std::move(statement)).first->second;
}

}  // namespace vantrel

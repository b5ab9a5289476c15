// A prepared statement of SQLite.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <sqlite3.h>

#include "database/Session.h"

namespace vantrel {

/// Must not outlive its database. Returns SQLite's result codes, which the session explains.
class SqliteStatement {
 public:
  /// pblnKept: it will be run many times.
  SqliteStatement(sqlite3* pobjDatabase, const std::string& pstrText, bool pblnKept, int& plngResult);

  /// Runs to the end and then forgets its parameters. Empty and null variants are bound as NULL. The rows go to the result, if one is
  /// given.
  int Run(const std::vector<Variant>& pcolParameters, EngineRows* pobjRows);
  bool IsReadOnly() const { return sqlite3_stmt_readonly(mobjStatement.get()) != 0; }

 private:
  /// How a column was declared.
  enum class Kind : std::uint8_t { Unknown, Boolean, Int16, Single, Date };

  int Bind(int plngIndex, const Variant& pvarValue);
  void AppendRow(EngineRows& pobjRows);
  Variant Value(int plngColumn) const;
  Variant WholeNumber(int plngColumn) const;
  std::string Text(int plngColumn) const;
  void ReadKinds();

  struct Finalize {
    void operator()(sqlite3_stmt* pobjStatement) const { sqlite3_finalize(pobjStatement); }
  };

  std::unique_ptr<sqlite3_stmt, Finalize> mobjStatement;
  std::vector<Kind> mcolKinds;  // one for each column, from the first row on
};

}  // namespace vantrel

// Translates statements that differ in their numbers and texts alone once.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "database/Dialect.h"

namespace vantrel {

/// A translated statement, and where its values were in the source.
class StatementShape {
 public:
  StatementShape(std::string pstrSource, std::vector<SqlValue> pcolValues, std::string pstrText);

  /// False for another statement, or when only a translation can tell.
  bool Read(std::string_view pstrSql, EngineStatement& pobjStatement) const;

 private:
  std::string mstrSource;
  std::vector<SqlValue> mcolValues;
  std::string mstrText;
};

/// For one dialect.
class StatementShapes {
 public:
  EngineStatement Translate(const Dialect& pobjDialect, std::string_view pstrSql);

 private:
  static constexpr std::size_t kMost = 16;

  std::vector<StatementShape> mcolShapes;
  std::size_t mlngNext = 0;  // the one to replace when there are kMost
};

}  // namespace vantrel

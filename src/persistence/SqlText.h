// Writes statements in the statement language.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "util/Date.h"

namespace vantrel {

/// A text for a statement: between single quotes, with the quotes inside doubled, so that no text can become a statement.
struct SqlQuoted {
  std::string_view Text;
};

/// A list of ids for IN.
struct SqlList {
  const std::vector<std::int32_t>& Ids;
};

/// Builds a statement piece by piece. Values from outside are added as values, never as pieces.
class SqlText {
 public:
  /// Adds a literal of the program unchanged.
  SqlText& operator<<(const char* pstrPiece);
  SqlText& operator<<(std::int32_t plngValue);
  SqlText& operator<<(bool pblnValue);
  /// The shortest digits that give the same single when read, with a decimal point.
  SqlText& operator<<(float psngValue);
  SqlText& operator<<(Date pdtmValue);
  SqlText& operator<<(SqlQuoted pText);
  SqlText& operator<<(SqlList pList);
  SqlText& operator<<(const std::string&) = delete;

  const std::string& Text() const { return mstrText; }

 private:
  std::string mstrText;
};

}  // namespace vantrel

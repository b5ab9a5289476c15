// A table of text.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vantrel {

/// Rows of cells, each column as wide as its longest cell. Cells are UTF-8; control characters become blanks.
class Columns {
 public:
  explicit Columns(std::vector<std::string> pcolHeading) : mcolRows{std::move(pcolHeading)} {}

  /// As many cells as the heading has.
  void Add(std::vector<std::string> pcolRow) { mcolRows.push_back(std::move(pcolRow)); }
  void Write(std::ostream& pobjOut, const std::string& pstrIndent = {}) const;

 private:
  std::vector<std::vector<std::string>> mcolRows;
};

}  // namespace vantrel

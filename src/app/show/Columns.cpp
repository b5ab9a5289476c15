#include "app/show/Columns.h"

#include <algorithm>
#include <cstddef>
#include <ostream>

#include "app/Lines.h"

namespace vantrel {

namespace {

// Counts characters, not bytes. Right for a terminal that shows them all equally wide.
std::size_t WidthOf(const std::string& pstrText) {
  const auto begins = [](char pstrByte) { return (static_cast<unsigned char>(pstrByte) & 0xC0) != 0x80; };
  return static_cast<std::size_t>(std::count_if(pstrText.begin(), pstrText.end(), begins));
}

}  // namespace

void Columns::Write(std::ostream& pobjOut, const std::string& pstrIndent) const {
  std::vector<std::size_t> widths(mcolRows.front().size());
  for (const auto& row : mcolRows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], WidthOf(row[i]));
  }
  for (const auto& row : mcolRows) {
    std::string line = pstrIndent;
    for (std::size_t i = 0; i < row.size(); ++i) line += OnOneLine(row[i]) + std::string(widths[i] - WidthOf(row[i]) + 2, ' ');
    pobjOut << line.erase(line.find_last_not_of(' ') + 1) << '\n';
  }
}

}  // namespace vantrel

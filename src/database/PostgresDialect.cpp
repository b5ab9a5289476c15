#include "database/PostgresDialect.h"

#include <algorithm>

#include "database/SqlWords.h"

namespace vantrel {

namespace {

// Also true for a BY inside a text of a list: such a statement keeps the order that the engine gives.
bool HasOrderOrGroups(std::string_view pstrText) {
  for (auto at = pstrText.find_first_of("bB"); at != std::string_view::npos; at = pstrText.find_first_of("bB", at + 1)) {
    if (IsSameName(pstrText.substr(at - 1, 4), " by ")) return true;
  }
  return false;
}

}  // namespace

void PostgresDialect::AppendName(std::string& pstrText, std::string_view pstrName) const {
  pstrText.push_back('"');
  for (const char c : pstrName) {
    if (c == '"') pstrText.push_back('"');
    pstrText.push_back(LowerCase(c));
  }
  pstrText.push_back('"');
}

void PostgresDialect::AppendParameter(std::string& pstrText, std::size_t plngNumber) const {
  pstrText.append("$").append(std::to_string(plngNumber));
}

void PostgresDialect::AppendBoolean(std::string& pstrText, bool pblnValue) const { pstrText.append(pblnValue ? "TRUE" : "FALSE"); }

void PostgresDialect::AppendDate(std::string& pstrText, Date pdtmValue) const {
  pstrText.append("TIMESTAMP '").append(pdtmValue.ToText()).append("'");
}

std::string_view PostgresDialect::UnorderedTable(std::string_view pstrText) const {
  constexpr std::string_view kWholeRows = "SELECT * FROM \"";
  if (!IsSameName(pstrText.substr(0, kWholeRows.size()), kWholeRows)) return {};
  const std::string_view rest = pstrText.substr(kWholeRows.size());
  const std::string_view table = rest.substr(0, rest.find('"'));
  const std::string_view behind = rest.substr(std::min(rest.size(), table.size() + 1));
  const bool isOneTable = behind.empty() || IsSameName(behind.substr(0, 7), " WHERE ");
  return isOneTable && !HasOrderOrGroups(behind) ? table : std::string_view();
}

}  // namespace vantrel

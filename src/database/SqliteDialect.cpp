#include "database/SqliteDialect.h"

namespace vantrel {

void SqliteDialect::AppendName(std::string& pstrText, std::string_view pstrName) const {
  pstrText.push_back('"');
  for (const char c : pstrName) {
    if (c == '"') pstrText.push_back('"');
    pstrText.push_back(c);
  }
  pstrText.push_back('"');
}

// Without a number SQLite counts by itself.
void SqliteDialect::AppendParameter(std::string& pstrText, std::size_t /*plngNumber*/) const { pstrText.push_back('?'); }

void SqliteDialect::AppendBoolean(std::string& pstrText, bool pblnValue) const { pstrText.push_back(pblnValue ? '1' : '0'); }

void SqliteDialect::AppendDate(std::string& pstrText, Date pdtmValue) const { pstrText.append("'").append(pdtmValue.ToText()).append("'"); }

}  // namespace vantrel

// How PostgreSQL wants statements written.
#pragma once

#include "database/Dialect.h"

namespace vantrel {

/// Names are written in small letters, as in the schema, and in double quotes.
class PostgresDialect final : public Dialect {
 public:
  std::string_view UnorderedTable(std::string_view pstrText) const override;

 protected:
  void AppendName(std::string& pstrText, std::string_view pstrName) const override;
  void AppendParameter(std::string& pstrText, std::size_t plngNumber) const override;
  void AppendBoolean(std::string& pstrText, bool pblnValue) const override;
  void AppendDate(std::string& pstrText, Date pdtmValue) const override;
  std::string_view ReturningId() const override { return " RETURNING \"id\""; }
};

}  // namespace vantrel

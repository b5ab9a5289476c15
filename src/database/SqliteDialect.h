// How SQLite wants statements written.
#pragma once

#include "database/Dialect.h"

namespace vantrel {

/// Names are written in double quotes. SQLite must be told not to read unknown ones as texts.
class SqliteDialect final : public Dialect {
 protected:
  void AppendName(std::string& pstrText, std::string_view pstrName) const override;
  void AppendParameter(std::string& pstrText, std::size_t plngNumber) const override;
  void AppendBoolean(std::string& pstrText, bool pblnValue) const override;
  void AppendDate(std::string& pstrText, Date pdtmValue) const override;
};

}  // namespace vantrel

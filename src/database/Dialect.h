// How an engine wants the statements of the system written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "database/Session.h"

namespace vantrel {

/// Turns a statement into the engine's language token by token, so that nothing inside quoted text is ever touched, and takes
/// its values out as parameters, so that statements of one shape are prepared once. Lists of values behind IN stay text.
class Dialect {
 public:
  Dialect() = default;
  Dialect(const Dialect&) = delete;
  Dialect& operator=(const Dialect&) = delete;
  virtual ~Dialect() = default;

  /// Throws Error vntErrStatement for text that is no statement (a quote that does not end, a character that no statement
  /// has, two statements in one).
  EngineStatement Translate(std::string_view pstrSql) const;
  /// The table that a SELECT reads from, or that is named alone; empty when there is none or more than one.
  static std::string TableOf(std::string_view pstrSource);

  /// For row sets: a row added, or the row with that id changed, column by column.
  EngineStatement InsertRow(std::string_view pstrTable, const std::vector<std::string>& pcolColumns, std::vector<Variant> pcolValues) const;
  EngineStatement UpdateRow(std::string_view pstrTable, const std::vector<std::string>& pcolColumns, std::vector<Variant> pcolValues,
                            std::int32_t plngId) const;

 protected:
  /// A name as the engine takes it whatever word it is, for example in quotes and in lower case.
  virtual void AppendName(std::string& pstrText, std::string_view pstrName) const = 0;
  /// The placeholder of a parameter, counted from 1.
  virtual void AppendParameter(std::string& pstrText, std::size_t plngNumber) const = 0;
  virtual void AppendBoolean(std::string& pstrText, bool pblnValue) const = 0;
  virtual void AppendDate(std::string& pstrText, Date pdtmValue) const = 0;
  /// What InsertRow ends with so that Session::Insert learns the new id.
  virtual std::string_view ReturningId() const { return {}; }
  /// What a translated statement ends with so that its rows come in the order of their insertion; nothing where the engine
  /// gives them so by itself, or where the statement has an order of its own.
  virtual std::string_view RowOrder(std::string_view /*pstrText*/) const { return {}; }

 private:
  class Translation;
};

}  // namespace vantrel

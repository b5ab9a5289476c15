// How an engine writes the statements of the system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "database/Session.h"

namespace vantrel {

/// Where a number or a text stood in a statement.
struct SqlValue {
  std::size_t Begin;
  std::size_t End;
  bool IsText;
  bool MayHaveSign;  ///< else a sign before the number is an operator
};

/// Translates a statement into the engine's language token by token, so that quoted text is never changed. Takes its values out as
/// parameters, so that statements of one shape are prepared once. Lists of values after IN stay text.
class Dialect {
 public:
  Dialect() = default;
  Dialect(const Dialect&) = delete;
  Dialect& operator=(const Dialect&) = delete;
  virtual ~Dialect() = default;

  /// Throws Error vntErrStatement for invalid text: a quote that does not end, a character that no statement has, two statements
  /// in one. Lists the numbers and texts that became parameters, if asked to.
  EngineStatement Translate(std::string_view pstrSql, std::vector<SqlValue>* pcolValues = nullptr) const;
  /// The table that a SELECT reads from, or that is named alone; empty when there is none or more than one.
  static std::string TableOf(std::string_view pstrSource);

  /// For row sets: adds a row, or changes columns of the row with that id.
  EngineStatement InsertRow(std::string_view pstrTable, const std::vector<std::string>& pcolColumns, std::vector<Variant> pcolValues) const;
  EngineStatement UpdateRow(std::string_view pstrTable, const std::vector<std::string>& pcolColumns, std::vector<Variant> pcolValues,
                            std::int32_t plngId) const;

  /// The table of a translated statement for whole rows without an order of its own, where the engine gives a changed row last. Empty
  /// otherwise.
  virtual std::string_view UnorderedTable(std::string_view /*pstrText*/) const { return {}; }
  /// What puts the rows of such a table into the order of their insertion, as far as its columns tell it.
  std::string InsertionOrder(const std::vector<std::string>& pcolColumns) const;

 protected:
  /// A name as the engine reads it even if it is a reserved word, for example in quotes and in lower case.
  virtual void AppendName(std::string& pstrText, std::string_view pstrName) const = 0;
  /// The placeholder of a parameter, counted from 1.
  virtual void AppendParameter(std::string& pstrText, std::size_t plngNumber) const = 0;
  virtual void AppendBoolean(std::string& pstrText, bool pblnValue) const = 0;
  virtual void AppendDate(std::string& pstrText, Date pdtmValue) const = 0;
  /// The end of InsertRow's statement that makes it give the new id to Session::Insert.
  virtual std::string_view ReturningId() const { return {}; }

 private:
  class Translation;
};

}  // namespace vantrel

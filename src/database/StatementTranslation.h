// The translation of one statement into an engine's language.
#pragma once

#include <string_view>

#include "database/Dialect.h"
#include "database/SqlTokenizer.h"

namespace vantrel {

/// The number of a statement. Throws Error vntErrStatement for one that no double holds.
Variant SqlNumber(std::string_view pstrDigits, bool pblnNegative);

/// Writes the statement again, token by token and with single blanks, so that statements of one shape have the same text.
class Dialect::Translation {
 public:
  Translation(const Dialect& pobjDialect, std::string_view pstrSql, std::vector<SqlValue>* pcolValues);

  EngineStatement Run();

 private:
  void CheckBeginning() const;
  void Translate(const SqlToken& pToken);
  void TranslateWord(const SqlToken& pToken);
  void TranslateSymbol(const SqlToken& pToken);
  bool IsName(const SqlToken& pToken) const;
  /// `pstrWhole` has the sign, too.
  void AddNumber(std::string_view pstrDigits, bool pblnNegative, std::string_view pstrWhole);
  void NoteValue(std::string_view pstrWhole, bool pblnText);
  void AddValue(Variant pvarValue);
  /// The values after IN, which stay text, up to and including the closing parenthesis.
  void TranslateList();
  void TranslateListItem(const SqlToken& pToken);

  void AddName(std::string_view pstrName);
  /// A word or symbol as it is.
  void AddPlain(std::string_view pstrText, bool pblnValueFollows);
  void AddSymbol(std::string_view pstrSymbol);
  void AddBlank();

  const Dialect& mobjDialect;
  std::string_view mstrSql;
  std::vector<SqlValue>* mcolValues;
  SqlTokenizer mTokens;
  EngineStatement mResult;
  bool mblnGlue = true;           // no blank before the next token
  bool mblnValueFollows = false;  // a minus here is a sign
  bool mblnAfterDot = false;
  bool mblnOrdering = false;  // after ORDER BY or GROUP BY a number is the place of a column, not a value
};

}  // namespace vantrel

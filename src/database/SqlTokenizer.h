// Cuts a statement of the system into tokens without copying it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "database/SqlWords.h"

namespace vantrel {

enum class SqlTokenKind : std::uint8_t { End, Word, BracketedName, Text, Date, Number, Symbol };

struct SqlToken {
  SqlTokenKind Kind = SqlTokenKind::End;
  SqlWord Class = SqlWord::Name;  ///< of a word
  std::string_view Text;          ///< without the brackets, quotes or number signs; quotes inside of text are still doubled

  bool IsSymbol(std::string_view pstrSymbol) const { return Kind == SqlTokenKind::Symbol && Text == pstrSymbol; }
  bool IsWord(SqlWord pClass) const { return Kind == SqlTokenKind::Word && Class == pClass; }
};

/// Throws Error vntErrStatement for an invalid token. The statement must outlive it and its tokens.
class SqlTokenizer {
 public:
  explicit SqlTokenizer(std::string_view pstrSql);

  SqlToken Next();
  /// The token that Next will give.
  const SqlToken& Peek() const { return mNext; }

 private:
  SqlToken Read();
  SqlToken ReadWord();
  SqlToken ReadNumber();
  SqlToken ReadText();
  SqlToken ReadUntil(char pchrEnd, SqlTokenKind pKind, const char* pstrWhat);
  SqlToken ReadSymbol();
  void SkipDigits();
  SqlToken Cut(std::size_t plngStart, SqlTokenKind pKind) const;

  std::string_view mstrSql;
  std::size_t mlngAt = 0;
  SqlToken mNext;
};

/// The value of a text token, with doubled quotes made single.
std::string UndoubleQuotes(std::string_view pstrText);

}  // namespace vantrel

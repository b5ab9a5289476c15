#include "database/SqlTokenizer.h"

#include "util/Error.h"

namespace vantrel {

namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
// All of UTF-8 beyond ASCII counts as letters.
constexpr bool IsWordStart(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || (c & '\x80') != 0; }
constexpr bool IsWordPart(char c) { return IsWordStart(c) || IsDigit(c); }
constexpr bool IsBlank(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }

}  // namespace

SqlTokenizer::SqlTokenizer(std::string_view pstrSql) : mstrSql(pstrSql) {
  // Engines would stop reading there, some in the middle of a text.
  if (mstrSql.find('\0') != std::string_view::npos) throw Error(vntErrStatement, "The statement contains a NUL character.");
  mNext = Read();
}

SqlToken SqlTokenizer::Next() {
  const SqlToken token = mNext;
  mNext = Read();
  return token;
}

SqlToken SqlTokenizer::Read() {
  while (mlngAt < mstrSql.size() && IsBlank(mstrSql[mlngAt])) ++mlngAt;
  if (mlngAt == mstrSql.size()) return {};
  const char c = mstrSql[mlngAt];
  if (IsWordStart(c)) return ReadWord();
  if (IsDigit(c) || (c == '.' && mlngAt + 1 < mstrSql.size() && IsDigit(mstrSql[mlngAt + 1]))) return ReadNumber();
  if (c == '\'') return ReadText();
  if (c == '[') return ReadUntil(']', SqlTokenKind::BracketedName, "a name in brackets");
  if (c == '#') return ReadUntil('#', SqlTokenKind::Date, "a date");
  return ReadSymbol();
}

SqlToken SqlTokenizer::Cut(std::size_t plngStart, SqlTokenKind pKind) const {
  return {pKind, SqlWord::Name, mstrSql.substr(plngStart, mlngAt - plngStart)};
}

SqlToken SqlTokenizer::ReadWord() {
  const std::size_t start = mlngAt;
  while (mlngAt < mstrSql.size() && IsWordPart(mstrSql[mlngAt])) ++mlngAt;
  SqlToken token = Cut(start, SqlTokenKind::Word);
  token.Class = ClassOf(token.Text);
  return token;
}

void SqlTokenizer::SkipDigits() {
  while (mlngAt < mstrSql.size() && IsDigit(mstrSql[mlngAt])) ++mlngAt;
}

SqlToken SqlTokenizer::ReadNumber() {
  const std::size_t start = mlngAt;
  SkipDigits();
  if (mlngAt < mstrSql.size() && mstrSql[mlngAt] == '.') {
    ++mlngAt;
    SkipDigits();
  }
  if (mlngAt < mstrSql.size() && LowerCase(mstrSql[mlngAt]) == 'e') {
    ++mlngAt;
    if (mlngAt < mstrSql.size() && (mstrSql[mlngAt] == '+' || mstrSql[mlngAt] == '-')) ++mlngAt;
    const std::size_t exponent = mlngAt;
    SkipDigits();
    if (mlngAt == exponent) throw Error(vntErrStatement, "The statement contains a number without the digits of its exponent.");
  }
  if (mlngAt < mstrSql.size() && IsWordPart(mstrSql[mlngAt])) {
    throw Error(vntErrStatement, "The statement contains a number that runs into a word.");
  }
  return Cut(start, SqlTokenKind::Number);
}

SqlToken SqlTokenizer::ReadText() {
  const std::size_t start = ++mlngAt;
  for (;;) {
    mlngAt = mstrSql.find('\'', mlngAt);
    if (mlngAt == std::string_view::npos) throw Error(vntErrStatement, "The statement contains a text without a closing quote.");
    if (mlngAt + 1 == mstrSql.size() || mstrSql[mlngAt + 1] != '\'') break;
    mlngAt += 2;
  }
  const SqlToken token = Cut(start, SqlTokenKind::Text);
  ++mlngAt;
  return token;
}

SqlToken SqlTokenizer::ReadUntil(char pchrEnd, SqlTokenKind pKind, const char* pstrWhat) {
  const std::size_t start = ++mlngAt;
  mlngAt = mstrSql.find(pchrEnd, mlngAt);
  if (mlngAt == std::string_view::npos || mlngAt == start) {
    throw Error(vntErrStatement, std::string("The statement contains ") + pstrWhat + " that is empty or does not end.");
  }
  const SqlToken token = Cut(start, pKind);
  ++mlngAt;
  return token;
}

SqlToken SqlTokenizer::ReadSymbol() {
  constexpr std::string_view kSymbols = "(),.=<>*+-/;";
  const std::size_t start = mlngAt;
  const char c = mstrSql[mlngAt++];
  if (kSymbols.find(c) == std::string_view::npos) {
    throw Error(vntErrStatement, std::string("The statement contains the character ") + c + ", which no statement has.");
  }
  if ((c == '<' || c == '>') && mlngAt < mstrSql.size() && (mstrSql[mlngAt] == '=' || (c == '<' && mstrSql[mlngAt] == '>'))) ++mlngAt;
  return Cut(start, SqlTokenKind::Symbol);
}

std::string UndoubleQuotes(std::string_view pstrText) {
  std::string text;
  text.reserve(pstrText.size());
  for (std::size_t at = 0;;) {
    const std::size_t quote = pstrText.find('\'', at);
    if (quote == std::string_view::npos) return text.append(pstrText.substr(at));
    text.append(pstrText.substr(at, quote + 1 - at));
    at = quote + 2;
  }
}

}  // namespace vantrel

#include "database/StatementTranslation.h"

#include <charconv>
#include <limits>
#include <string>
#include <utility>

#include "database/DateText.h"
#include "util/Error.h"

namespace vantrel {

namespace {

double RealOf(std::string_view pstrDigits) {
  double number = 0;
  const auto [end, problem] = std::from_chars(pstrDigits.data(), pstrDigits.data() + pstrDigits.size(), number);
  if (problem != std::errc{}) throw Error(vntErrStatement, "The statement contains a number that is too large or too small.");
  return number;
}

Date DateOf(std::string_view pstrText) {
  Date date;
  if (!ParseDate(pstrText, date)) {
    throw Error(vntErrStatement,
                "The statement contains #" + std::string(pstrText) + "#, which is no date of the form YYYY-MM-DD HH:MM:SS.");
  }
  return date;
}

}  // namespace

Variant SqlNumber(std::string_view pstrDigits, bool pblnNegative) {
  std::int64_t whole = 0;
  const char* const last = pstrDigits.data() + pstrDigits.size();
  const auto [end, problem] = std::from_chars(pstrDigits.data(), last, whole);
  const std::int64_t number = pblnNegative ? -whole : whole;
  using Limits = std::numeric_limits<std::int32_t>;
  if (problem == std::errc{} && end == last && number >= Limits::min() && number <= Limits::max()) {
    return static_cast<std::int32_t>(number);
  }
  return pblnNegative ? -RealOf(pstrDigits) : RealOf(pstrDigits);
}

Dialect::Translation::Translation(const Dialect& pobjDialect, std::string_view pstrSql, std::vector<SqlValue>* pcolValues)
    : mobjDialect(pobjDialect), mstrSql(pstrSql), mcolValues(pcolValues), mTokens(pstrSql) {
  CheckBeginning();
  mResult.IsReusable = true;
  mResult.Text.reserve(pstrSql.size() + pstrSql.size() / 4 + 32);  // for the quotes around names
}

EngineStatement Dialect::Translation::Run() {
  for (SqlToken token = mTokens.Next(); token.Kind != SqlTokenKind::End; token = mTokens.Next()) {
    if (token.IsSymbol(";")) {
      if (mTokens.Peek().Kind != SqlTokenKind::End) throw Error(vntErrStatement, "There are two statements in one.");
      break;
    }
    Translate(token);
  }
  return std::move(mResult);
}

void Dialect::Translation::CheckBeginning() const {
  const SqlToken& first = mTokens.Peek();
  if (first.Kind == SqlTokenKind::End) throw Error(vntErrStatement, "The statement is empty.");
  const bool isStatement = first.Kind == SqlTokenKind::Word && (first.Class == SqlWord::Select || first.Class == SqlWord::Insert ||
                                                                first.Class == SqlWord::Update || first.Class == SqlWord::Delete);
  if (!isStatement) throw Error(vntErrStatement, "A statement begins with SELECT, INSERT, UPDATE or DELETE.");
}

void Dialect::Translation::Translate(const SqlToken& pToken) {
  switch (pToken.Kind) {
    case SqlTokenKind::Word:
      return TranslateWord(pToken);
    case SqlTokenKind::BracketedName:
      return AddName(pToken.Text);
    case SqlTokenKind::Text:
      NoteValue({pToken.Text.data() - 1, pToken.Text.size() + 2}, true);
      return AddValue(UndoubleQuotes(pToken.Text));
    case SqlTokenKind::Date:
      return AddValue(DateOf(pToken.Text));
    case SqlTokenKind::Number:
      return AddNumber(pToken.Text, false, pToken.Text);
    default:
      return TranslateSymbol(pToken);
  }
}

bool Dialect::Translation::IsName(const SqlToken& pToken) const {
  const SqlToken& next = mTokens.Peek();
  if (mblnAfterDot || next.IsSymbol(".")) return true;
  switch (pToken.Class) {
    case SqlWord::Name:
      return true;
    case SqlWord::Function:
      return !next.IsSymbol("(");
    case SqlWord::BeforeBy:
      return !next.IsWord(SqlWord::By);
    case SqlWord::BeforeJoin:
      return !next.IsWord(SqlWord::Join);
    default:
      return false;
  }
}

void Dialect::Translation::TranslateWord(const SqlToken& pToken) {
  if (IsName(pToken)) return AddName(pToken.Text);
  if (pToken.Class == SqlWord::True || pToken.Class == SqlWord::False) return AddValue(pToken.Class == SqlWord::True);
  AddPlain(pToken.Text, true);
  if (pToken.Class == SqlWord::By) mblnOrdering = true;
  if (pToken.Class == SqlWord::Select) mblnOrdering = false;
  if (pToken.Class == SqlWord::Delete && mTokens.Peek().IsSymbol("*")) mTokens.Next();
  if (pToken.Class == SqlWord::Function) mblnGlue = true;
  if (pToken.Class == SqlWord::In && mTokens.Peek().IsSymbol("(")) {
    AddPlain(mTokens.Next().Text, true);
    mblnGlue = true;
    if (!mTokens.Peek().IsWord(SqlWord::Select)) TranslateList();
  }
}

void Dialect::Translation::TranslateSymbol(const SqlToken& pToken) {
  const char symbol = pToken.Text.front();
  if ((symbol == '-' || symbol == '+') && mblnValueFollows && mTokens.Peek().Kind == SqlTokenKind::Number) {
    // The sign becomes part of the number: an engine cannot tell the type of a signed parameter.
    const std::string_view digits = mTokens.Next().Text;
    const char* const sign = pToken.Text.data();
    return AddNumber(digits, symbol == '-', {sign, static_cast<std::size_t>(digits.data() + digits.size() - sign)});
  }
  AddSymbol(pToken.Text);
}

void Dialect::Translation::AddSymbol(std::string_view pstrSymbol) {
  const char symbol = pstrSymbol.front();
  if (symbol == ')') mblnOrdering = false;
  if (symbol == '.' || symbol == ',' || symbol == ')') mblnGlue = true;
  AddPlain(pstrSymbol, symbol != ')' && symbol != '.');
  mblnGlue = symbol == '.' || symbol == '(';
  mblnAfterDot = symbol == '.';
}

void Dialect::Translation::AddNumber(std::string_view pstrDigits, bool pblnNegative, std::string_view pstrWhole) {
  if (mblnOrdering) return AddPlain(pstrDigits, false);
  NoteValue(pstrWhole, false);
  AddValue(SqlNumber(pstrDigits, pblnNegative));
}

void Dialect::Translation::NoteValue(std::string_view pstrWhole, bool pblnText) {
  if (!mcolValues) return;
  const auto begin = static_cast<std::size_t>(pstrWhole.data() - mstrSql.data());
  mcolValues->push_back({begin, begin + pstrWhole.size(), pblnText, mblnValueFollows});
}

void Dialect::Translation::AddValue(Variant pvarValue) {
  AddBlank();
  mResult.Parameters.push_back(std::move(pvarValue));
  mobjDialect.AppendParameter(mResult.Text, mResult.Parameters.size());
  mblnValueFollows = false;
}

void Dialect::Translation::TranslateList() {
  mResult.IsReusable = false;
  for (int depth = 1; depth > 0;) {
    const SqlToken token = mTokens.Next();
    if (token.Kind == SqlTokenKind::End) throw Error(vntErrStatement, "The statement contains a list that does not end.");
    if (token.IsSymbol("(")) ++depth;
    if (token.IsSymbol(")")) --depth;
    TranslateListItem(token);
  }
}

void Dialect::Translation::TranslateListItem(const SqlToken& pToken) {
  switch (pToken.Kind) {
    case SqlTokenKind::Number:
      return AddPlain(pToken.Text, false);
    case SqlTokenKind::Symbol:
      if (pToken.Text == ";") throw Error(vntErrStatement, "There are two statements in one.");
      return AddSymbol(pToken.Text);
    case SqlTokenKind::Text:
      AddPlain("'", false);
      mResult.Text.append(pToken.Text).append("'");
      return;
    case SqlTokenKind::Date:
      AddBlank();
      return mobjDialect.AppendDate(mResult.Text, DateOf(pToken.Text));
    default:
      break;
  }
  if (!pToken.IsWord(SqlWord::True) && !pToken.IsWord(SqlWord::False)) return Translate(pToken);
  AddBlank();
  mobjDialect.AppendBoolean(mResult.Text, pToken.Class == SqlWord::True);
}

void Dialect::Translation::AddName(std::string_view pstrName) {
  AddBlank();
  mobjDialect.AppendName(mResult.Text, pstrName);
  mblnValueFollows = false;
  mblnAfterDot = false;
}

void Dialect::Translation::AddPlain(std::string_view pstrText, bool pblnValueFollows) {
  AddBlank();
  mResult.Text.append(pstrText);
  mblnValueFollows = pblnValueFollows;
}

void Dialect::Translation::AddBlank() {
  if (!mblnGlue) mResult.Text.push_back(' ');
  mblnGlue = false;
}

}  // namespace vantrel

#include "database/StatementShapes.h"

#include <algorithm>
#include <utility>

#include "database/SqlTokenizer.h"
#include "database/StatementTranslation.h"

namespace vantrel {

namespace {

constexpr bool IsNumeral(char c) { return c >= '0' && c <= '9'; }

// Reads values as SqlTokenizer does. A value in a form that is rare, such as an exponent, does not fit.
class ValueReader {
 public:
  explicit ValueReader(std::string_view pstrSql) : mstrSql(pstrSql) {}

  bool Skip(std::string_view pstrPiece) {
    if (mstrSql.compare(mlngAt, pstrPiece.size(), pstrPiece) != 0) return false;
    mlngAt += pstrPiece.size();
    return true;
  }
  bool IsAtEnd() const { return mlngAt == mstrSql.size(); }
  bool Number(bool pblnMayHaveSign, Variant& pvarNumber);
  bool Text(Variant& pvarText);

 private:
  char Next() const { return mlngAt < mstrSql.size() ? mstrSql[mlngAt] : '\0'; }
  void SkipNumerals() {
    while (IsNumeral(Next())) ++mlngAt;
  }

  std::string_view mstrSql;
  std::size_t mlngAt = 0;
};

bool ValueReader::Number(bool pblnMayHaveSign, Variant& pvarNumber) {
  const bool isNegative = Next() == '-';
  if (pblnMayHaveSign && (isNegative || Next() == '+')) ++mlngAt;
  const std::size_t start = mlngAt;
  if (!IsNumeral(Next())) return false;
  SkipNumerals();
  if (Next() == '.') {
    ++mlngAt;
    SkipNumerals();
  }
  pvarNumber = SqlNumber(mstrSql.substr(start, mlngAt - start), isNegative);
  return true;
}

bool ValueReader::Text(Variant& pvarText) {
  if (Next() != '\'') return false;
  const std::size_t start = ++mlngAt;
  for (;; mlngAt += 2) {
    mlngAt = mstrSql.find('\'', mlngAt);
    if (mlngAt == std::string_view::npos) return false;
    if (mlngAt + 1 == mstrSql.size() || mstrSql[mlngAt + 1] != '\'') break;
  }
  pvarText = UndoubleQuotes(mstrSql.substr(start, mlngAt - start));
  ++mlngAt;
  return true;
}

// Two values without anything between them could be divided in another way.
bool CanBeKept(const EngineStatement& pobjStatement, const std::vector<SqlValue>& pcolValues) {
  if (!pobjStatement.IsReusable || pcolValues.empty() || pcolValues.size() != pobjStatement.Parameters.size()) return false;
  const auto touches = [](const SqlValue& a, const SqlValue& b) { return a.End == b.Begin; };
  return std::adjacent_find(pcolValues.begin(), pcolValues.end(), touches) == pcolValues.end();
}

}  // namespace

StatementShape::StatementShape(std::string pstrSource, std::vector<SqlValue> pcolValues, std::string pstrText)
    : mstrSource(std::move(pstrSource)), mcolValues(std::move(pcolValues)), mstrText(std::move(pstrText)) {}

bool StatementShape::Read(std::string_view pstrSql, EngineStatement& pobjStatement) const {
  ValueReader reader(pstrSql);
  const std::string_view source = mstrSource;
  if (!reader.Skip(source.substr(0, mcolValues.front().Begin)) || pstrSql.find('\0') != std::string_view::npos) return false;
  std::vector<Variant> values(mcolValues.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    const SqlValue& value = mcolValues[i];
    if (!(value.IsText ? reader.Text(values[i]) : reader.Number(value.MayHaveSign, values[i]))) return false;
    const std::size_t end = i + 1 < values.size() ? mcolValues[i + 1].Begin : source.size();
    if (!reader.Skip(source.substr(value.End, end - value.End))) return false;
  }
  if (!reader.IsAtEnd()) return false;
  pobjStatement.Text = mstrText;
  pobjStatement.Parameters = std::move(values);
  pobjStatement.IsReusable = true;
  return true;
}

EngineStatement StatementShapes::Translate(const Dialect& pobjDialect, std::string_view pstrSql) {
  EngineStatement statement;
  for (const StatementShape& shape : mcolShapes) {
    if (shape.Read(pstrSql, statement)) return statement;
  }
  std::vector<SqlValue> values;
  statement = pobjDialect.Translate(pstrSql, &values);
  if (!CanBeKept(statement, values)) return statement;
  StatementShape shape(std::string(pstrSql), std::move(values), statement.Text);
  if (mcolShapes.size() < kMost) {
    mcolShapes.push_back(std::move(shape));
  } else {
    mcolShapes[mlngNext++ % kMost] = std::move(shape);
  }
  return statement;
}

}  // namespace vantrel

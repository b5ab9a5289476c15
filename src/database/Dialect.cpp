#include "database/Dialect.h"

#include <algorithm>
#include <utility>

#include "database/SqlTokenizer.h"
#include "database/StatementTranslation.h"
#include "util/Error.h"

namespace vantrel {

namespace {

bool IsName(const SqlToken& pToken) { return pToken.Kind == SqlTokenKind::Word || pToken.Kind == SqlTokenKind::BracketedName; }

bool IsJoined(const SqlToken& pToken) {
  return pToken.IsSymbol(",") || pToken.IsWord(SqlWord::Join) || pToken.IsWord(SqlWord::BeforeJoin) ||
         (pToken.Kind == SqlTokenKind::Word && (IsSameName(pToken.Text, "inner") || IsSameName(pToken.Text, "union")));
}

// The text after the FROM that belongs to the first SELECT.
std::string TableBehindFrom(SqlTokenizer& pobjTokens) {
  int depth = 0;
  for (SqlToken token = pobjTokens.Next(); token.Kind != SqlTokenKind::End; token = pobjTokens.Next()) {
    if (token.IsSymbol("(")) ++depth;
    if (token.IsSymbol(")")) --depth;
    if (depth > 0 || !token.IsWord(SqlWord::From)) continue;
    const SqlToken table = pobjTokens.Next();
    return IsName(table) && !IsJoined(pobjTokens.Peek()) ? std::string(table.Text) : std::string();
  }
  return {};
}

void CheckTexts(const std::vector<std::string>& pcolColumns, const std::vector<Variant>& pcolValues) {
  for (std::size_t i = 0; i < pcolValues.size(); ++i) {
    if (pcolValues[i].IsText() && pcolValues[i].ToText().find('\0') != std::string::npos) {
      throw Error(vntErrStatement, "The text of the column " + pcolColumns[i] + " contains a NUL character.");
    }
  }
}

}  // namespace

EngineStatement Dialect::Translate(std::string_view pstrSql, std::vector<SqlValue>* pcolValues) const {
  return Translation(*this, pstrSql, pcolValues).Run();
}

std::string Dialect::InsertionOrder(const std::vector<std::string>& pcolColumns) const {
  for (const char* counted : {"Id", "Seq"}) {
    const auto isCounted = [&](const std::string& pstrColumn) { return IsSameName(pstrColumn, counted); };
    if (std::none_of(pcolColumns.begin(), pcolColumns.end(), isCounted)) continue;
    std::string order = " ORDER BY ";
    AppendName(order, counted);
    return order;
  }
  return {};
}

std::string Dialect::TableOf(std::string_view pstrSource) {
  SqlTokenizer tokens(pstrSource);
  const SqlToken first = tokens.Next();
  if (first.IsWord(SqlWord::Select)) return TableBehindFrom(tokens);
  return IsName(first) && tokens.Peek().Kind == SqlTokenKind::End ? std::string(first.Text) : std::string();
}

EngineStatement Dialect::InsertRow(std::string_view pstrTable, const std::vector<std::string>& pcolColumns,
                                   std::vector<Variant> pcolValues) const {
  CheckTexts(pcolColumns, pcolValues);
  EngineStatement statement;
  std::string& text = statement.Text;
  text = "INSERT INTO ";
  AppendName(text, pstrTable);
  if (pcolColumns.empty()) text += " DEFAULT VALUES";
  for (std::size_t i = 0; i < pcolColumns.size(); ++i) {
    text += i == 0 ? " (" : ", ";
    AppendName(text, pcolColumns[i]);
  }
  for (std::size_t i = 0; i < pcolColumns.size(); ++i) {
    text += i == 0 ? ") VALUES (" : ", ";
    AppendParameter(text, i + 1);
  }
  if (!pcolColumns.empty()) text += ")";
  text += ReturningId();
  statement.Parameters = std::move(pcolValues);
  AppendName(statement.Table, pstrTable);
  statement.IsReusable = true;
  return statement;
}

EngineStatement Dialect::UpdateRow(std::string_view pstrTable, const std::vector<std::string>& pcolColumns, std::vector<Variant> pcolValues,
                                   std::int32_t plngId) const {
  CheckTexts(pcolColumns, pcolValues);
  EngineStatement statement;
  std::string& text = statement.Text;
  text = "UPDATE ";
  AppendName(text, pstrTable);
  for (std::size_t i = 0; i < pcolColumns.size(); ++i) {
    text += i == 0 ? " SET " : ", ";
    AppendName(text, pcolColumns[i]);
    text += " = ";
    AppendParameter(text, i + 1);
  }
  text += " WHERE ";
  AppendName(text, "Id");
  text += " = ";
  AppendParameter(text, pcolColumns.size() + 1);
  statement.Parameters = std::move(pcolValues);
  statement.Parameters.emplace_back(plngId);
  statement.IsReusable = true;
  return statement;
}

}  // namespace vantrel

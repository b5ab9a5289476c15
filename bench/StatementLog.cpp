#include "StatementLog.h"

#include <charconv>

namespace vantrel::bench {

namespace {

std::string Quoted(const std::string& pstrText) {
  std::string quoted = "'";
  for (const char c : pstrText) quoted += c == '\'' ? std::string("''") : std::string(1, c);
  return quoted + "'";
}

std::string Literal(const Variant& pvarValue) {
  if (pvarValue.IsNull() || pvarValue.IsEmpty()) return "NULL";
  if (pvarValue.IsText()) return Quoted(pvarValue.ToText());
  if (pvarValue.IsDate()) return Quoted(pvarValue.ToDate().ToText());
  if (pvarValue.IsBoolean()) return pvarValue.ToBoolean() ? "true" : "false";
  return pvarValue.ToText();
}

}  // namespace

std::string AsText(const EngineStatement& pobjStatement) {
  if (pobjStatement.Parameters.empty()) return pobjStatement.Text;
  // Each "?" is the next parameter, "$2" is the second. Names contain neither.
  const std::string& from = pobjStatement.Text;
  std::string text;
  std::size_t next = 0;
  for (std::size_t i = 0; i < from.size(); ++i) {
    if (from[i] != '?' && from[i] != '$') {
      text += from[i];
      continue;
    }
    std::size_t number = ++next;
    if (from[i] == '$')
      i = static_cast<std::size_t>(std::from_chars(&from[i + 1], from.data() + from.size(), number).ptr - from.data()) - 1;
    text += Literal(pobjStatement.Parameters.at(number - 1));
  }
  return text;
}

std::int64_t LoggingSession::Run(const EngineStatement& pobjStatement) {
  mcolLog->push_back({pobjStatement, false, pobjStatement.Text.find("DELETE") == std::string::npos});
  return mobjSession->Run(pobjStatement);
}

EngineRows LoggingSession::Query(const EngineStatement& pobjStatement) {
  mcolLog->push_back({pobjStatement, true, false});
  return mobjSession->Query(pobjStatement);
}

std::int32_t LoggingSession::Insert(const EngineStatement& pobjStatement) {
  mcolLog->push_back({pobjStatement, false, true});
  return mobjSession->Insert(pobjStatement);
}

}  // namespace vantrel::bench

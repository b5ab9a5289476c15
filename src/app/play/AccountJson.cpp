#include "app/JsonWriter.h"
#include "app/play/Account.h"

namespace vantrel {

namespace {

const char* Word(StopReason pReason) {
  switch (pReason) {
    case StopReason::Limit:
      return "limit";
    case StopReason::Error:
      return "error";
    default:
      return "quiet";
  }
}

void WriteKeyOrNull(JsonWriter& pobjJson, const std::optional<AccountEntry>& pobjEntry) {
  if (pobjEntry) {
    pobjJson.Text(pobjEntry->Key);
  } else {
    pobjJson.Null();
  }
}

void WriteNet(JsonWriter& pobjJson, const Account& pobjAccount) {
  pobjJson.Key("net").Text(pobjAccount.Net);
  pobjJson.Key("places").Number(pobjAccount.Places);
  pobjJson.Key("transitions").Number(pobjAccount.Transitions);
  pobjJson.Key("arcs").Number(pobjAccount.Arcs);
  WriteKeyOrNull(pobjJson.Key("start"), pobjAccount.Start);
  WriteKeyOrNull(pobjJson.Key("end"), pobjAccount.End);
}

void WriteOutcome(JsonWriter& pobjJson, const Account& pobjAccount) {
  pobjJson.Key("cases").Open('{');
  if (pobjAccount.CasesTakenUp) pobjJson.Key("taken_up").Number(*pobjAccount.CasesTakenUp);
  pobjJson.Key("started").Number(pobjAccount.CasesStarted);
  pobjJson.Key("finished").Number(pobjAccount.CasesFinished).Close('}');
  pobjJson.Key("firings").Number(pobjAccount.Firings);
  pobjJson.Key("tokens_created").Number(pobjAccount.TokensCreated);
  pobjJson.Key("stopped").Text(Word(pobjAccount.Stopped)).Key("error");
  if (pobjAccount.Stopped == StopReason::Error) {
    pobjJson.Text(pobjAccount.Error);
  } else {
    pobjJson.Null();
  }
}

}  // namespace

std::string ToJson(const Account& pobjAccount) {
  JsonWriter json;
  json.Open('{');
  WriteNet(json, pobjAccount);
  WriteOutcome(json, pobjAccount);
  json.Key("marking").Open('{');
  for (const auto& holding : pobjAccount.Marking) json.Key(holding.Place.Key).Number(holding.Tokens);
  json.Close('}').Key("trace").Open('[');
  for (const auto& firing : pobjAccount.Trace) json.Text(firing.Key);
  json.Close(']').Close('}');
  return json.Written();
}

}  // namespace vantrel

#include <nlohmann/json.hpp>

#include "app/Json.h"
#include "app/play/Account.h"

namespace vantrel {

namespace {

using nlohmann::ordered_json;

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

ordered_json EntryKey(const std::optional<AccountEntry>& pobjEntry) { return pobjEntry ? ordered_json(pobjEntry->Key) : nullptr; }

ordered_json Cases(const Account& pobjAccount) {
  auto cases = ordered_json::object();
  if (pobjAccount.CasesTakenUp) cases["taken_up"] = *pobjAccount.CasesTakenUp;
  cases["started"] = pobjAccount.CasesStarted;
  cases["finished"] = pobjAccount.CasesFinished;
  return cases;
}

// Adds without the search for an equal key that operator[] makes: a net may hold tokens in very many places.
ordered_json Marking(const Account& pobjAccount) {
  ordered_json::object_t marking;
  marking.reserve(pobjAccount.Marking.size());
  for (const auto& holding : pobjAccount.Marking) marking.emplace_back(holding.Place.Key, holding.Tokens);
  return marking;
}

ordered_json Trace(const Account& pobjAccount) {
  ordered_json::array_t trace;
  trace.reserve(pobjAccount.Trace.size());
  for (const auto& firing : pobjAccount.Trace) trace.emplace_back(firing.Key);
  return trace;
}

}  // namespace

std::string ToJson(const Account& pobjAccount) {
  return OneLine({{"net", pobjAccount.Net},
                  {"places", pobjAccount.Places},
                  {"transitions", pobjAccount.Transitions},
                  {"arcs", pobjAccount.Arcs},
                  {"start", EntryKey(pobjAccount.Start)},
                  {"end", EntryKey(pobjAccount.End)},
                  {"cases", Cases(pobjAccount)},
                  {"firings", pobjAccount.Firings},
                  {"tokens_created", pobjAccount.TokensCreated},
                  {"stopped", Word(pobjAccount.Stopped)},
                  {"error", pobjAccount.Stopped == StopReason::Error ? ordered_json(pobjAccount.Error) : nullptr},
                  {"marking", Marking(pobjAccount)},
                  {"trace", Trace(pobjAccount)}});
}

}  // namespace vantrel

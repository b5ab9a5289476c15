#include "database/postgres/PostgresLink.h"

#include <string_view>

#include <libpq-fe.h>

#include "database/postgres/PostgresAddress.h"
#include "database/postgres/PostgresValues.h"
#include "util/Error.h"

namespace vantrel {

namespace {

// Messages of libpq have several lines, tabs, and a line break at their end.
std::string OneLine(std::string_view pstrText) {
  std::string line;
  for (const char c : pstrText) {
    const bool isBlank = c == '\n' || c == '\r' || c == '\t' || c == ' ';
    if (!isBlank) {
      line += c;
    } else if (!line.empty() && line.back() != ' ') {
      line += ' ';
    }
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

// Some messages of libpq's end with a question.
std::string Sentence(std::string_view pstrText) {
  std::string sentence = OneLine(pstrText);
  if (!sentence.ends_with('?') && !sentence.ends_with('.')) sentence += '.';
  return sentence;
}

std::string FieldOf(const PostgresResult& pobjResult, int pintField) {
  const char* text = pobjResult ? PQresultErrorField(pobjResult.get(), pintField) : nullptr;
  return text ? text : "";
}

PGconn* Connect(const std::string& pstrAddress) {
  // The address overrides the parameters before dbname, but not those after it.
  const char* const names[] = {"connect_timeout",  "keepalives_idle",           "keepalives_interval",
                               "keepalives_count", "tcp_user_timeout",          "dbname",
                               "client_encoding",  "fallback_application_name", nullptr};
  const char* const values[] = {"10", "60", "10", "3", "60000", pstrAddress.c_str(), "UTF8", "vantrel", nullptr};
  return PQconnectdbParams(names, values, 1);
}

}  // namespace

void PostgresResultCloser::operator()(pg_result* pobjResult) const noexcept { PQclear(pobjResult); }

void PostgresLink::Closer::operator()(pg_conn* pobjConnection) const noexcept { PQfinish(pobjConnection); }

std::string RefusalCode(const PostgresResult& pobjRefusal) { return FieldOf(pobjRefusal, PG_DIAG_SQLSTATE); }

std::string RefusalText(const PostgresResult& pobjRefusal) {
  const std::string text = FieldOf(pobjRefusal, PG_DIAG_MESSAGE_PRIMARY);
  return OneLine(text.empty() ? PQresultErrorMessage(pobjRefusal.get()) : text.c_str());
}

PostgresLink::PostgresLink(const std::string& pstrAddress, int pintLockTimeout) : mShownAddress(ShownAddress(pstrAddress)) {
  CheckAddress(pstrAddress);
  mConnection.reset(Connect(pstrAddress));
  if (PQstatus(mConnection.get()) != CONNECTION_OK) {
    throw Error(vntErrDatabase, "Cannot open the database " + mShownAddress + ": " + Sentence(PQerrorMessage(mConnection.get())));
  }
  PQsetNoticeProcessor(
      mConnection.get(), [](void*, const char*) {}, nullptr);
  SetUp(pintLockTimeout);
}

void PostgresLink::SetUp(int pintLockTimeout) {
  const std::string settings =
      "SET standard_conforming_strings = on; SET datestyle = 'ISO'; SET timezone = 'UTC'; SET extra_float_digits = 1; SET bytea_output = "
      "hex; "
      "SET lock_timeout = " +
      std::to_string(pintLockTimeout);
  const PostgresResult result(PQexec(mConnection.get(), settings.c_str()));
  if (PQresultStatus(result.get()) != PGRES_COMMAND_OK || !PQenterPipelineMode(mConnection.get())) {
    throw Error(vntErrDatabase, "Cannot use the database " + mShownAddress + ": " + RefusalText(result) + ".");
  }
}

void PostgresLink::Lose(const std::string& pstrReason) {
  mIsLost = true;
  std::string description = "The connection to the database " + mShownAddress + " is lost";
  const std::string reason = OneLine(pstrReason);
  if (!reason.empty()) description += ": " + reason;
  throw Error(vntErrObjectClosed, Sentence(description));
}

void PostgresLink::Sent(int pintSuccess) {
  ++mQueued;
  if (!pintSuccess) Lose(PQerrorMessage(mConnection.get()));
}

void PostgresLink::Prepare(const std::string& pstrName, const std::string& pstrText) {
  Sent(PQsendPrepare(mConnection.get(), pstrName.c_str(), pstrText.c_str(), 0, nullptr));
}

void PostgresLink::QueuePrepared(const std::string& pstrName, const PostgresParameters& pobjParameters) {
  Sent(PQsendQueryPrepared(mConnection.get(), pstrName.c_str(), pobjParameters.Count(), pobjParameters.Pointers(), nullptr, nullptr, 0));
}

void PostgresLink::Queue(const std::string& pstrText, const PostgresParameters& pobjParameters) {
  Sent(PQsendQueryParams(mConnection.get(), pstrText.c_str(), pobjParameters.Count(), nullptr, pobjParameters.Pointers(), nullptr, nullptr,
                         0));
}

void PostgresLink::Queue(const std::string& pstrText) { Queue(pstrText, PostgresParameters({})); }

PostgresFlight PostgresLink::Fly() {
  if (!PQpipelineSync(mConnection.get())) Lose(PQerrorMessage(mConnection.get()));
  mQueued = 0;
  PostgresFlight flight;
  Receive(flight);
  return flight;
}

// Each command gives a result and a null. A null without a result before it comes from a lost connection.
void PostgresLink::Receive(PostgresFlight& pobjFlight) {
  for (bool wasNull = false;;) {
    PostgresResult result(PQgetResult(mConnection.get()));
    if (!result) {
      if (wasNull || PQstatus(mConnection.get()) != CONNECTION_OK) {
        Lose(pobjFlight.Refusal ? RefusalText(pobjFlight.Refusal) : PQerrorMessage(mConnection.get()));
      }
      wasNull = true;
      continue;
    }
    wasNull = false;
    if (PQresultStatus(result.get()) == PGRES_PIPELINE_SYNC) return;
    Take(pobjFlight, std::move(result));
  }
}

void PostgresLink::Take(PostgresFlight& pobjFlight, PostgresResult pobjResult) {
  switch (PQresultStatus(pobjResult.get())) {
    case PGRES_COMMAND_OK:
    case PGRES_TUPLES_OK:
    case PGRES_EMPTY_QUERY:
      ++pobjFlight.Done;
      pobjFlight.Last = std::move(pobjResult);
      return;
    case PGRES_PIPELINE_ABORTED:
      return;
    default:
      break;
  }
  const std::string severity = FieldOf(pobjResult, PG_DIAG_SEVERITY_NONLOCALIZED);
  if (severity == "FATAL" || severity == "PANIC" || PQstatus(mConnection.get()) != CONNECTION_OK) Lose(RefusalText(pobjResult));
  pobjFlight.Last.reset();
  pobjFlight.Refusal = std::move(pobjResult);
}

PostgresResult PostgresLink::RunScript(const std::string& pstrScript) {
  PQexitPipelineMode(mConnection.get());
  PostgresResult result(PQexec(mConnection.get(), pstrScript.c_str()));
  if (PQstatus(mConnection.get()) != CONNECTION_OK) Lose(RefusalText(result));
  PQenterPipelineMode(mConnection.get());
  const auto status = PQresultStatus(result.get());
  const bool isGood = status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK || status == PGRES_EMPTY_QUERY;
  return isGood ? nullptr : std::move(result);
}

}  // namespace vantrel

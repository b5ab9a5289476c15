#include "database/postgres/PostgresSession.h"

#include <charconv>
#include <cstring>
#include <limits>
#include <string_view>

#include <libpq-fe.h>

#include "database/postgres/PostgresAddress.h"
#include "util/Error.h"

namespace vantrel {

namespace {

// Prepared by name once in a session: both run before every statement that follows a change.
const std::string kSetSavepoint = "savepoint_set", kReleaseSavepoint = "savepoint_release";

// All writers of the system lock this number until their transaction ends. Any number will do that no other program locks.
const std::string kLockOutWriters = "SELECT pg_advisory_xact_lock(7308327773265655148)";

constexpr std::string_view kLockNotAvailable = "55P03";
constexpr std::string_view kFeatureNotSupported = "0A000";  // also for a prepared statement whose table has been altered

bool OnlyReads(const std::string& pstrText) { return pstrText.starts_with("SELECT"); }

const PostgresParameters& NoParameters() {
  static const PostgresParameters none({});
  return none;
}

}  // namespace

void PostgresSession::Open(const std::string& pstrAddress) {
  Close();
  if (!pstrAddress.empty()) mAddress = pstrAddress;
  auto link = std::make_unique<PostgresLink>(mAddress, mLockTimeout);
  link->Prepare(kSetSavepoint, "SAVEPOINT before");
  link->Prepare(kReleaseSavepoint, "RELEASE SAVEPOINT before");
  const auto flight = link->Fly();
  if (flight.Refusal)
    throw Error(vntErrDatabase, "Cannot use the database " + ShownAddress(mAddress) + ": " + RefusalText(flight.Refusal) + ".");
  mLink = std::move(link);
}

void PostgresSession::Close() noexcept {
  mLink.reset();
  mStatements = {};
  mIsInTransaction = false;
}

PostgresLink& PostgresSession::Link() {
  if (!IsOpen()) throw Error(vntErrObjectClosed, "The connection to the database " + ShownAddress(mAddress) + " is closed.");
  return *mLink;
}

void PostgresSession::QueueSavepoint() {
  if (!mIsInTransaction || !mHasWritten) return;
  mLink->QueuePrepared(kReleaseSavepoint, NoParameters());
  mLink->QueuePrepared(kSetSavepoint, NoParameters());
}

// The savepoint comes first, so that a refusal after it, even of preparing, keeps the change before it.
PostgresFlight PostgresSession::Try(const EngineStatement& pobjStatement) {
  PostgresLink& link = Link();
  const PostgresParameters parameters(pobjStatement.Parameters);
  QueueSavepoint();
  if (pobjStatement.IsReusable) {
    mStatements.Queue(link, pobjStatement.Text, parameters);
  } else {
    link.Queue(pobjStatement.Text, parameters);
  }
  auto flight = link.Fly();
  mStatements.Landed(flight.Done);
  mHasWritten = !flight.Refusal && !OnlyReads(pobjStatement.Text) && std::strcmp(PQcmdTuples(flight.Last.get()), "0") != 0;
  return flight;
}

PostgresResult PostgresSession::Execute(const EngineStatement& pobjStatement) {
  auto flight = Try(pobjStatement);
  if (flight.Refusal) {
    Undo();
    const bool mayBeOutdated = RefusalCode(flight.Refusal) == kFeatureNotSupported && mStatements.Forget(pobjStatement.Text);
    if (!mayBeOutdated) Refuse(flight.Refusal);
    flight = Try(pobjStatement);
    if (flight.Refusal) {
      Undo();
      Refuse(flight.Refusal);
    }
  }
  return std::move(flight.Last);
}

void PostgresSession::Undo() {
  if (!mIsInTransaction) return;
  mLink->Queue("ROLLBACK TO SAVEPOINT before");
  if (mLink->Fly().Refusal) Rollback();
}

void PostgresSession::Refuse(const PostgresResult& pobjRefusal) const {
  if (RefusalCode(pobjRefusal) == kLockNotAvailable) {
    throw Error(vntErrDatabase, "The database " + ShownAddress(mAddress) + " is locked: another writer keeps the database.");
  }
  throw Error(vntErrStatement, RefusalText(pobjRefusal));
}

std::int64_t PostgresSession::Run(const EngineStatement& pobjStatement) {
  const auto result = Execute(pobjStatement);
  const std::string_view count = PQcmdTuples(result.get());
  std::int64_t rows = 0;
  std::from_chars(count.data(), count.data() + count.size(), rows);
  return rows;
}

EngineRows PostgresSession::Query(const EngineStatement& pobjStatement) { return ReadRows(Execute(pobjStatement).get()); }

std::int32_t PostgresSession::Insert(const EngineStatement& pobjStatement) {
  const auto rows = Query(pobjStatement);
  if (rows.Values.empty() || !rows.Values.front().IsNumber()) throw Error(vntErrStatement, "The database gave the new row no Id.");
  const double newId = rows.Values.front().ToDouble();
  if (newId <= std::numeric_limits<std::int32_t>::max()) return static_cast<std::int32_t>(newId);
  if (!mIsInTransaction)
    Run({"DELETE FROM " + pobjStatement.Table + " WHERE \"id\" = " + std::to_string(static_cast<std::int64_t>(newId)), {}, false});
  Undo();
  throw Error(vntErrOverflow, "The table " + pobjStatement.Table + " has no id left: ids have 32 bits.");
}

void PostgresSession::RunScript(const std::string& pstrScript) {
  PostgresLink& link = Link();
  if (mIsInTransaction && mHasWritten) {
    QueueSavepoint();
    link.Fly();
  }
  mHasWritten = false;
  if (const auto refusal = link.RunScript(pstrScript)) {
    Undo();
    Refuse(refusal);
  }
  mHasWritten = true;
}

void PostgresSession::Begin(Transaction pTransaction) {
  PostgresLink& link = Link();
  if (pTransaction == Transaction::Write) {
    // A statement reads rows only once it has the lock, and so sees what the writer before it has done.
    link.Queue("BEGIN ISOLATION LEVEL READ COMMITTED READ WRITE");
    link.Queue(kLockOutWriters);
  } else {
    link.Queue("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY");
    link.Queue("SELECT 1");  // takes the snapshot
  }
  link.QueuePrepared(kSetSavepoint, NoParameters());
  const auto flight = link.Fly();
  mIsInTransaction = true;
  mHasWritten = false;
  if (!flight.Refusal) return;
  Rollback();
  Refuse(flight.Refusal);
}

void PostgresSession::Commit() {
  PostgresLink& link = Link();
  mIsInTransaction = false;
  PostgresFlight flight;
  try {
    link.Queue("COMMIT");
    flight = link.Fly();
  } catch (Error& error) {
    error.Description += " Whether the last changes were kept is not known.";
    throw;
  }
  if (flight.Refusal) Refuse(flight.Refusal);
  if (std::strcmp(PQcmdStatus(flight.Last.get()), "COMMIT") != 0) throw Error(vntErrStatement, "The database has undone the transaction.");
}

void PostgresSession::Rollback() noexcept {
  if (!IsInTransaction()) return;
  mIsInTransaction = false;
  try {
    mLink->Queue("ROLLBACK");
    if (mLink->Fly().Refusal) mLink.reset();
  } catch (const Error&) {  // NOLINT(bugprone-empty-catch): the server undoes what a lost connection has begun
  }
}

}  // namespace vantrel

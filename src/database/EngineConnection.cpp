#include "database/EngineConnection.h"

#include <utility>

#include "database/Dialect.h"
#include "database/EngineRecordset.h"
#include "util/Error.h"

namespace vantrel {

EngineConnection::EngineConnection(std::unique_ptr<Session> pobjSession, std::string pstrAddress)
    : mobjSession(std::move(pobjSession)), mstrAddress(std::move(pstrAddress)) {}

EngineConnection::~EngineConnection() {
  EndTransaction();
  mobjSession->Close();
}

void EngineConnection::Execute(const std::string& pstrSql, std::int32_t /*plngOptions*/) {
  Session& session = Usable(vntErrObjectClosed);
  ++mlngWritten;
  try {
    session.Run(mShapes.Translate(Dialect(), pstrSql));
  } catch (const Error& error) {
    NoteFailure(error.Description);
    throw;
  }
}

void EngineConnection::Open(const std::string& pstrAddress, const std::string& pstrUserId, const std::string& pstrPassword,
                            std::int32_t /*plngOptions*/) {
  if (!pstrUserId.empty() || !pstrPassword.empty()) {
    throw Error(vntErrInvalidCall, "The user and the password belong into the address of the database.");
  }
  const bool isElsewhere = !pstrAddress.empty() && pstrAddress != mstrAddress;
  if (mobjSession->IsOpen() && !isElsewhere) return;
  if (mlngDepth > 0 && !mblnLost) {
    mblnLost = true;
    mstrLoss = "The connection to the database was lost.";
  }
  mcolColumns.clear();
  mobjSession->Close();
  if (isElsewhere) mstrAddress = pstrAddress;
  mobjSession->Open(mstrAddress);
}

std::unique_ptr<Recordset> EngineConnection::NewRecordset() { return std::make_unique<EngineRecordset>(*this); }

void EngineConnection::BeginTrans(Transaction pTransaction) {
  if (mlngDepth == 0) {
    BeginOutermost(pTransaction);
    mKind = pTransaction;
    mblnLost = false;
    mstrLoss.clear();
  } else {
    if (pTransaction == Transaction::Write && mKind == Transaction::Read) {
      throw Error(vntErrInvalidCall, "A transaction that only reads cannot contain one that writes.");
    }
    Usable(vntErrObjectClosed);
  }
  ++mlngDepth;
}

void EngineConnection::BeginOutermost(Transaction pTransaction) {
  ++mlngWritten;
  if (!mobjSession->IsOpen()) Open();
  try {
    mobjSession->Begin(pTransaction);
  } catch (const Error&) {
    if (mobjSession->IsOpen()) throw;
    // The session turns out to be lost only now. No change was in it.
    Open();
    mobjSession->Begin(pTransaction);
  }
}

void EngineConnection::CommitTrans() {
  if (mlngDepth == 0) throw Error(vntErrInvalidCall, "There is no transaction to commit.");
  if (mlngDepth > 1) {
    --mlngDepth;
    return;
  }
  if (IsTransactionLost()) {
    const std::string reason = ReasonOfLoss();
    EndTransaction();
    throw Error(vntErrDatabase, reason + " Nothing of the transaction was saved.");
  }
  try {
    mobjSession->Commit();
  } catch (...) {
    EndTransaction();
    throw;
  }
  mlngDepth = 0;
}

void EngineConnection::RollbackTrans() noexcept {
  if (mlngDepth <= 1) return EndTransaction();
  if (!IsTransactionLost()) mobjSession->Rollback();
  mblnLost = true;
  --mlngDepth;
}

void EngineConnection::EndTransaction() noexcept {
  if (mlngDepth > 0 && mobjSession->IsOpen() && mobjSession->IsInTransaction()) mobjSession->Rollback();
  mlngDepth = 0;
  mblnLost = false;
}

bool EngineConnection::IsTransactionLost() const {
  return mlngDepth > 0 && (mblnLost || !mobjSession->IsOpen() || !mobjSession->IsInTransaction());
}

void EngineConnection::NoteFailure(const std::string& pstrDescription) {
  if (mblnLost || !IsTransactionLost()) return;
  mblnLost = true;
  mstrLoss = pstrDescription;
}

std::string EngineConnection::ReasonOfLoss() const {
  if (!mstrLoss.empty()) return mstrLoss;
  return mblnLost ? "A part of the transaction was undone." : "The database gave up the transaction.";
}

Session& EngineConnection::Usable(std::int32_t plngNumber) {
  if (IsTransactionLost()) throw Error(plngNumber, ReasonOfLoss() + " The transaction is lost.");
  if (!mobjSession->IsOpen()) throw Error(plngNumber);
  return *mobjSession;
}

template <class Action>
auto EngineConnection::ForRowSet(Action pAction) {
  Session& session = Usable(vntErrNoConnection);
  try {
    return pAction(session);
  } catch (const Error& error) {
    NoteFailure(error.Description);
    if (error.Number == vntErrObjectClosed) throw Error(vntErrNoConnection, error.Description);
    throw;
  }
}

EngineRows EngineConnection::Query(const EngineStatement& pobjStatement) {
  return ForRowSet([&](Session& session) { return session.Query(pobjStatement); });
}

EngineRows EngineConnection::Select(const std::string& pstrSql) {
  EngineStatement statement = mShapes.Translate(Dialect(), pstrSql);
  const std::string table(Dialect().UnorderedTable(statement.Text));
  if (!table.empty()) statement.Text += Dialect().InsertionOrder(*ColumnsOf(table));
  return Query(statement);
}

std::int64_t EngineConnection::Run(const EngineStatement& pobjStatement) {
  ++mlngWritten;
  return ForRowSet([&](Session& session) { return session.Run(pobjStatement); });
}

std::int32_t EngineConnection::Insert(const EngineStatement& pobjStatement) {
  ++mlngWritten;
  return ForRowSet([&](Session& session) { return session.Insert(pobjStatement); });
}

std::shared_ptr<const std::vector<std::string>> EngineConnection::ColumnsOf(const std::string& pstrTable) {
  Usable(vntErrNoConnection);
  auto& columns = mcolColumns[pstrTable];
  if (!columns) {
    auto rows = Query(Dialect().Translate("SELECT * FROM [" + pstrTable + "] WHERE 1 = 0"));
    columns = std::make_shared<const std::vector<std::string>>(std::move(rows.Columns));
  }
  return columns;
}

}  // namespace vantrel

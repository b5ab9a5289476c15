#include "persistence/DatabaseAccess.h"

namespace vantrel {

namespace {

void Abandon(Connection& pobjConnection, SavedMarks& pobjMarks) {
  pobjConnection.RollbackTrans();
  pobjMarks.Restore();
}

}  // namespace

vantrel::Connection& DatabaseAccess::Connection() const {
  if (!mobjConnection) throw Error(vntErrObjectNotSet);
  return *mobjConnection;
}

std::int32_t DatabaseAccess::ExecuteSQL(const SqlText& pobjSql) {
  try {
    Connection().Execute(pobjSql.Text(), Connection::kOptionsUnspecified);
    return 0;
  } catch (const Error& error) {
    Note(error);
    if (error.Number == vntErrObjectClosed) {
      try {
        Connection().Open("", "", "", Connection::kOptionsUnspecified);
      } catch (const Error& reason) {
        throw ReopeningFailed(reason);
      }
    }
    if (IsTransactionLost()) throw TransactionLost(error);
    return error.Number;
  }
}

std::unique_ptr<Recordset> DatabaseAccess::GetRecordset(const std::string& pstrSql, std::int32_t plngCursorType) {
  mobjUnusable.reset();
  if (!mobjConnection) {
    mobjUnusable = Error(vntErrNoConnection);
    return nullptr;
  }
  try {
    auto rows = mobjConnection->NewRecordset();
    rows->ActiveConnection = mobjConnection.get();
    rows->CursorLocation = vntUseClient;
    rows->CursorType = plngCursorType;
    rows->LockType = vntLockOptimistic;
    rows->Open(pstrSql);
    return rows;
  } catch (const Error& error) {
    if (error.Number == vntErrNoConnection) {
      mobjUnusable = error;
    } else {
      Note(error);
      if (IsTransactionLost()) throw TransactionLost(error);
    }
    return nullptr;
  }
}

std::unique_ptr<Recordset> DatabaseAccess::Rows(const std::string& pstrSql) {
  auto rows = GetRecordset(pstrSql);
  if (rows) return rows;
  if (mobjUnusable && IsTransactionLost()) throw Error(*mobjUnusable);
  throw Error(vntErrObjectNotSet);
}

std::int32_t DatabaseAccess::NextId(const std::string& pstrTableName) {
  const std::string sql = "SELECT MAX(Id) AS MaxId FROM " + pstrTableName;
  UseCursor(vntUseServer);
  const auto rows = Rows(sql);
  const Variant& largest = rows->Fields("MaxId").Value;
  if (largest.IsNull()) return 1;
  const std::int32_t id = largest.ToInt32();
  if (id == 0x7FFFFFFF) throw Error(vntErrOverflow, "The table " + pstrTableName + " has no id left: ids have 32 bits.");
  return id + 1;
}

void DatabaseAccess::Write(SavedMarks& pobjMarks, const std::function<void()>& pWork) {
  Connection();
  const auto connection = mobjConnection;  // whoever hears of a dirty mark may hand in another one
  NoteLoss([&] { connection->BeginTrans(Transaction::Write); });
  try {
    pWork();
  } catch (const Error& error) {
    if (!connection->IsTransactionLost()) {
      Commit(*connection, pobjMarks);
      throw;
    }
    Abandon(*connection, pobjMarks);
    if (dynamic_cast<const TransactionLost*>(&error) || dynamic_cast<const ReopeningFailed*>(&error)) throw;
    Note(error);
    throw TransactionLost(error);
  } catch (...) {
    Abandon(*connection, pobjMarks);
    throw;
  }
  Commit(*connection, pobjMarks);
}

void DatabaseAccess::Commit(vantrel::Connection& pobjConnection, SavedMarks& pobjMarks) {
  try {
    NoteLoss([&] { pobjConnection.CommitTrans(); });
  } catch (...) {
    pobjMarks.Restore();
    throw;
  }
}

void DatabaseAccess::NoteLoss(const std::function<void()>& pStep) {
  try {
    pStep();
  } catch (const Error& error) {
    Note(error);
    throw TransactionLost(error);
  }
}

void DatabaseAccess::Read(const std::function<bool()>& pWork) {
  const auto connection = mobjConnection;
  if (!BeginReading(connection.get())) {
    pWork();
    return;
  }
  bool hasRead = false;
  // A rollback would undo what a surrounding transaction of the host has written.
  const auto endQuietly = [&] {
    try {
      connection->CommitTrans();
    } catch (const Error&) {
      return;  // the more important failure is already thrown, or there was nothing to read
    }
  };
  try {
    hasRead = pWork();
  } catch (...) {
    endQuietly();
    throw;
  }
  hasRead ? connection->CommitTrans() : endQuietly();
}

// When no transaction can begin, the row sets fail for the same reason, and each reader handles that.
bool DatabaseAccess::BeginReading(vantrel::Connection* pobjConnection) {
  if (!pobjConnection) return false;
  try {
    pobjConnection->BeginTrans(Transaction::Read);
    return true;
  } catch (const Error&) {
    return false;
  }
}

}  // namespace vantrel

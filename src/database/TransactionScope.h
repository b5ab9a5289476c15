// A transaction that ends with its block.
#pragma once

#include "database/Connection.h"

namespace vantrel {

/// Rolled back unless Commit was called.
class [[nodiscard]] TransactionScope {
 public:
  TransactionScope(Connection& pobjConnection, Transaction pTransaction) : mConnection(pobjConnection) {
    mConnection.BeginTrans(pTransaction);
  }
  ~TransactionScope() {
    if (mblnOpen) mConnection.RollbackTrans();
  }
  TransactionScope(const TransactionScope&) = delete;
  TransactionScope& operator=(const TransactionScope&) = delete;

  /// Throws what Connection::CommitTrans throws; then the changes are gone.
  void Commit() {
    mblnOpen = false;
    mConnection.CommitTrans();
  }

 private:
  Connection& mConnection;
  bool mblnOpen = true;
};

}  // namespace vantrel

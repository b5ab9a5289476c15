// The host's connection to a relational database.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "database/Recordset.h"

namespace vantrel {

/// What a transaction is for. A reading one sees the state of its beginning throughout; writing ones wait for one another.
enum class Transaction : std::uint8_t { Read, Write };

/// An open connection, made and owned by the host. Takes the statements of VNTRDB: `DELETE * FROM`, dates between `#` signs,
/// booleans as the words True and False, reserved names in square brackets, text between single quotes with quotes doubled.
/// For one thread.
class Connection {
 public:
  static constexpr std::int32_t kOptionsUnspecified = -1;

  Connection() = default;
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  virtual ~Connection() = default;

  std::int32_t CursorLocation = vntUseServer;  ///< CursorLocationConstant; makes no difference to the engines here

  /// Runs a statement that gives no rows. Throws Error 3704 on a closed or lost connection, and an Error with the engine's
  /// description when the engine refuses the statement. A refused statement changes nothing, and the transaction keeps what it did
  /// before.
  virtual void Execute(const std::string& pstrSql, std::int32_t plngOptions = kOptionsUnspecified) = 0;

  /// Opens a closed or lost connection; an empty address means the previous one. Throws an Error that names the address when that
  /// fails.
  virtual void Open(const std::string& pstrAddress = {}, const std::string& pstrUserId = {}, const std::string& pstrPassword = {},
                    std::int32_t plngOptions = kOptionsUnspecified) = 0;

  /// A row set that is not open yet.
  [[nodiscard]] virtual std::unique_ptr<Recordset> NewRecordset() = 0;

  /// Transactions nest: the outermost pair counts. Begin throws an Error when another writer locks the database for too long.
  /// A write transaction inside a read transaction is refused with Error 5.
  virtual void BeginTrans(Transaction pTransaction) = 0;
  /// The outermost one makes the changes permanent. When the engine cannot write them, the transaction was lost or an inner one was
  /// rolled back, it throws an Error and the changes are gone.
  virtual void CommitTrans() = 0;
  /// Undoes the whole transaction, at the latest when the outermost one ends. Never throws.
  virtual void RollbackTrans() noexcept = 0;
  /// True while the connection, or the engine itself, has given up the open transaction. All that it did is undone, statements in it
  /// throw Error 3704 and row sets 3709, and its CommitTrans will throw.
  virtual bool IsTransactionLost() const = 0;
};

}  // namespace vantrel

// The host's way into a relational database.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "database/Recordset.h"

namespace vantrel {

/// What a transaction is for. Readers see the state of its beginning throughout; writers wait for one another.
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

  std::int32_t CursorLocation = vntUseServer;  ///< CursorLocationConstant; the engines here serve both alike

  /// Runs a statement that gives no rows. Throws Error 3704 on a closed or lost connection, and an Error with the engine's
  /// description when the engine refuses the statement; a refused statement has changed nothing, and what the transaction
  /// did before stays.
  virtual void Execute(const std::string& pstrSql, std::int32_t plngOptions = kOptionsUnspecified) = 0;

  /// Opens a closed or lost connection; without an address, at the one that it had before. Throws an Error that names the
  /// address when that does not succeed.
  virtual void Open(const std::string& pstrAddress = {}, const std::string& pstrUserId = {}, const std::string& pstrPassword = {},
                    std::int32_t plngOptions = kOptionsUnspecified) = 0;

  /// A row set that is not open yet.
  virtual std::unique_ptr<Recordset> NewRecordset() = 0;

  /// Transactions nest: the outermost pair counts. Begin throws an Error when another writer keeps the database for too long.
  /// A write transaction inside a read transaction is refused with Error 5.
  virtual void BeginTrans(Transaction pTransaction) = 0;
  /// The outermost one makes the changes lasting. It throws an Error, and the changes are gone, when the engine cannot write
  /// them, when the transaction was lost, or when an inner one was rolled back.
  virtual void CommitTrans() = 0;
  /// Undoes the whole transaction, at the latest when the outermost one ends. Never throws.
  virtual void RollbackTrans() noexcept = 0;
  /// True while the connection, or the engine itself, has given up the open transaction: all that it did is undone, nothing
  /// more can be done in it (statements throw Error 3704, row sets 3709), and its CommitTrans will throw.
  virtual bool IsTransactionLost() const = 0;
};

}  // namespace vantrel

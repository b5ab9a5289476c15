// The rows that a statement gives, one of them current; also how rows are added and changed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "util/Variant.h"

namespace vantrel {

class Connection;

enum CursorLocationConstant : std::int32_t { vntUseServer = 2, vntUseClient = 3 };
enum CursorTypeConstant : std::int32_t { vntOpenForwardOnly = 0 };
enum LockTypeConstant : std::int32_t { vntLockReadOnly = 1, vntLockOptimistic = 3 };

/// One column of the current row. Holds as long as the row is current.
struct Field {
  const Variant& Value;  ///< Null for a column without value
};

/// Made by Connection::NewRecordset, with that connection as the active one; must not outlive it. Every operation throws Error
/// 3704 before Open. Names of columns are told apart without regard to case.
class Recordset {
 public:
  Recordset() = default;
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;
  virtual ~Recordset() = default;

  Connection* ActiveConnection = nullptr;
  std::int32_t CursorLocation = vntUseServer;
  std::int32_t CursorType = vntOpenForwardOnly;
  std::int32_t LockType = vntLockReadOnly;

  /// Opens the rows of a SELECT statement, or of a table named alone, with the first row as the current one. Throws Error 3709
  /// when the connection cannot be used, and an Error with the engine's description when the engine refuses the statement.
  virtual void Open(const std::string& pstrSource) = 0;

  /// Behind the last row. (Not spelt in capitals as elsewhere in this field: the C library has a macro of that name.)
  virtual bool Eof() const = 0;
  /// Throws Error 3021 behind the last row.
  virtual void MoveNext() = 0;
  /// How many rows there are, wherever the current one is.
  virtual std::int32_t RecordCount() const = 0;
  /// Throws Error 3021 when there is no current row and Error 3265 when there is no such column.
  virtual Field Fields(std::string_view pstrName) const = 0;

  /// Begins a new row, which is the current one from then on.
  virtual void AddNew() = 0;
  /// Assigns a column of the current row; nothing is written before Update. Throws like Fields.
  virtual void Collect(std::string_view pstrName, const Variant& pvarValue) = 0;
  /// Writes what was assigned. A new row then has the `Id` that the engine gave it. Throws an Error with the engine's
  /// description when the engine refuses a value, or when the row is not there any more.
  virtual void Update() = 0;
};

}  // namespace vantrel

// The rows of a statement, one of which is current. Adds and changes rows.
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

/// One column of the current row. Valid while the row is current.
struct Field {
  const Variant& Value;  ///< Null for a column without value
};

/// Made by Connection::NewRecordset, with that connection as the active one; must not outlive it. Every operation throws Error
/// 3704 before Open. The case of column names does not matter.
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

  /// True after the last row. (Not spelt in capitals as usual: the C library has a macro of that name.)
  virtual bool Eof() const = 0;
  /// Throws Error 3021 after the last row.
  virtual void MoveNext() = 0;
  /// The number of all rows.
  virtual std::int32_t RecordCount() const = 0;
  /// Throws Error 3021 when there is no current row and Error 3265 when there is no such column.
  virtual Field Fields(std::string_view pstrName) const = 0;

  /// Begins a new row, which becomes the current one.
  virtual void AddNew() = 0;
  /// Assigns a column of the current row; nothing is written before Update. Throws like Fields.
  virtual void Collect(std::string_view pstrName, const Variant& pvarValue) = 0;
  /// Writes the assigned columns. A new row then has the `Id` that the engine gave it. Throws an Error with the engine's
  /// description when the engine refuses a value or when the row is gone.
  virtual void Update() = 0;
};

}  // namespace vantrel

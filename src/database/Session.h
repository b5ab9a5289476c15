// What an engine's adapter implements. EngineConnection makes a Connection of it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "database/Connection.h"
#include "util/Variant.h"

namespace vantrel {

class Dialect;

/// A statement in the language of an engine.
struct EngineStatement {
  std::string Text;                 ///< with numbered parameters where the dialect took values out
  std::vector<Variant> Parameters;  ///< never objects
  bool IsReusable = false;          ///< the same text will come again with other values, so prepare it
  std::string Table = {};           ///< of a row that is inserted, as the engine wants it written
};

/// All rows of a result, one after the other.
struct EngineRows {
  std::vector<std::string> Columns;
  std::vector<Variant> Values;  ///< Columns.size() for each row, in the kinds of the columns (text, single, date, ...)
};

/// A session with an engine, for one thread. Throws Errors whose description names the database where that helps, and Error 3704 on
/// a closed or lost session. A refused statement changes nothing and leaves the transaction usable.
class Session {
 public:
  Session() = default;
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  virtual ~Session() = default;

  virtual const vantrel::Dialect& Dialect() const = 0;
  virtual void Open(const std::string& pstrAddress) = 0;
  virtual void Close() noexcept = 0;
  /// False before Open and as soon as the session is known to be lost.
  virtual bool IsOpen() const = 0;

  /// Rows changed.
  virtual std::int64_t Run(const EngineStatement& pobjStatement) = 0;
  virtual EngineRows Query(const EngineStatement& pobjStatement) = 0;
  /// Runs the statement of Dialect::InsertRow. Returns the new row's id, which the engine gives. Throws Error 6 for an id beyond 32 bits,
  /// and there is no row then.
  virtual std::int32_t Insert(const EngineStatement& pobjStatement) = 0;

  /// Runs several statements in the engine's own language, such as those that create the tables: all or none of them.
  virtual void RunScript(const std::string& pstrScript) = 0;

  virtual void Begin(Transaction pTransaction) = 0;
  virtual void Commit() = 0;
  virtual void Rollback() noexcept = 0;
  /// False once the engine has ended the transaction by itself.
  virtual bool IsInTransaction() const = 0;
};

}  // namespace vantrel

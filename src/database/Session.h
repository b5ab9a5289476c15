// What the adapter of an engine does; EngineConnection makes a Connection of it.
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
  bool IsReusable = false;          ///< the text is a shape that will come again with other values: worth preparing
};

/// All rows of a result, one behind the other.
struct EngineRows {
  std::vector<std::string> Columns;
  std::vector<Variant> Values;  ///< Columns.size() for each row, in the kinds of the columns (text, single, date, ...)
};

/// A session with an engine, for one thread. Failures are Errors whose description names the database where that helps; 3704 for
/// a session that is closed or lost. A refused statement has changed nothing and leaves the transaction usable.
class Session {
 public:
  Session() = default;
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  virtual ~Session() = default;

  virtual const vantrel::Dialect& Dialect() const = 0;
  virtual void Open(const std::string& pstrAddress) = 0;
  virtual void Close() noexcept = 0;
  /// False before Open and from the moment when the session is known to be lost.
  virtual bool IsOpen() const = 0;

  /// Rows changed.
  virtual std::int64_t Run(const EngineStatement& pobjStatement) = 0;
  virtual EngineRows Query(const EngineStatement& pobjStatement) = 0;
  /// Runs what Dialect::InsertRow made. The new row's id, given by the engine.
  virtual std::int32_t Insert(const EngineStatement& pobjStatement) = 0;

  /// Several statements in the engine's own language, for example the tables to create; all or none of them.
  virtual void RunScript(const std::string& pstrScript) = 0;

  virtual void Begin(Transaction pTransaction) = 0;
  virtual void Commit() = 0;
  virtual void Rollback() noexcept = 0;
  /// False once the engine has ended the transaction by itself.
  virtual bool IsInTransaction() const = 0;
};

}  // namespace vantrel

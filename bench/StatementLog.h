// Records what a save or a read asks of an engine, to ask the same through the engine's own interface.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "database/Session.h"

namespace vantrel::bench {

struct LoggedStatement {
  EngineStatement Statement;
  bool IsQuery = false;
  bool IsRow = false;  ///< adds or changes a row
};
using StatementLog = std::vector<LoggedStatement>;

/// The statement with its parameters written into the text.
std::string AsText(const EngineStatement& pobjStatement);

/// A session that records the statements that it passes on.
class LoggingSession final : public Session {
 public:
  LoggingSession(std::unique_ptr<Session> pobjSession, std::shared_ptr<StatementLog> pcolLog)
      : mobjSession(std::move(pobjSession)), mcolLog(std::move(pcolLog)) {}

  const vantrel::Dialect& Dialect() const override { return mobjSession->Dialect(); }
  void Open(const std::string& pstrAddress) override { mobjSession->Open(pstrAddress); }
  void Close() noexcept override { mobjSession->Close(); }
  bool IsOpen() const override { return mobjSession->IsOpen(); }
  std::int64_t Run(const EngineStatement& pobjStatement) override;
  EngineRows Query(const EngineStatement& pobjStatement) override;
  std::int32_t Insert(const EngineStatement& pobjStatement) override;
  void RunScript(const std::string& pstrScript) override { mobjSession->RunScript(pstrScript); }
  void Begin(Transaction pTransaction) override { mobjSession->Begin(pTransaction); }
  void Commit() override { mobjSession->Commit(); }
  void Rollback() noexcept override { mobjSession->Rollback(); }
  bool IsInTransaction() const override { return mobjSession->IsInTransaction(); }

 private:
  std::unique_ptr<Session> mobjSession;
  std::shared_ptr<StatementLog> mcolLog;
};

}  // namespace vantrel::bench

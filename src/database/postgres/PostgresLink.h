// The connection to a server: commands are queued and sent together.
#pragma once

#include <memory>
#include <string>

struct pg_conn;
struct pg_result;

namespace vantrel {

class PostgresParameters;

struct PostgresResultCloser {
  void operator()(pg_result* pobjResult) const noexcept;
};
using PostgresResult = std::unique_ptr<pg_result, PostgresResultCloser>;

/// The server's code of a refusal, such as 55P03; empty if it gave none.
std::string RefusalCode(const PostgresResult& pobjRefusal);
/// What the server said, in one line.
std::string RefusalText(const PostgresResult& pobjRefusal);

/// The results of a flight. The server skips everything after a command that it refuses.
struct PostgresFlight {
  std::size_t Done = 0;    ///< commands that succeeded, counted from the first
  PostgresResult Last;     ///< of the last command; null when one was refused
  PostgresResult Refusal;  ///< of the command that was refused, or null
};

/// An open connection of libpq in its pipeline mode, for one thread. Queued commands are sent in the next flight, which takes one
/// round trip; outside a transaction, a flight is a transaction. Operations throw Error 3704 with the shown address when the server
/// or the way to it is gone; nothing works from then on.
class PostgresLink {
 public:
  /// Connects. Throws Error vntErrDatabase, with the shown address, when that fails.
  PostgresLink(const std::string& pstrAddress, int pintLockTimeout);

  void Prepare(const std::string& pstrName, const std::string& pstrText);
  void QueuePrepared(const std::string& pstrName, const PostgresParameters& pobjParameters);
  void Queue(const std::string& pstrText, const PostgresParameters& pobjParameters);
  void Queue(const std::string& pstrText);
  /// The number of commands in the next flight so far.
  std::size_t QueuedCount() const { return mQueued; }
  PostgresFlight Fly();

  /// Runs several statements in one text; outside a transaction all or none of them. Nothing may be queued. Returns a refusal or null.
  PostgresResult RunScript(const std::string& pstrScript);

  bool IsLost() const { return mIsLost; }

 private:
  struct Closer {
    void operator()(pg_conn* pobjConnection) const noexcept;
  };

  void SetUp(int pintLockTimeout);
  void Sent(int pintSuccess);
  void Receive(PostgresFlight& pobjFlight);
  void Take(PostgresFlight& pobjFlight, PostgresResult pobjResult);
  [[noreturn]] void Lose(const std::string& pstrReason);

  std::unique_ptr<pg_conn, Closer> mConnection;
  std::string mShownAddress;
  std::size_t mQueued = 0;
  bool mIsLost = false;
};

}  // namespace vantrel

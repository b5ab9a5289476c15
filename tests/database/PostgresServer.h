// Databases for tests on the PostgreSQL server whose address is in the environment variable VANTREL_POSTGRES.
#pragma once

#ifdef VANTREL_HAS_POSTGRES

#include <cstdlib>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "database/postgres/PostgresSession.h"
#include "util/Error.h"

/// For the beginning of a test or of its SetUp: skips the test when there is no server.
#define VANTREL_NEEDS_POSTGRES() \
  if (vantrel::test::PostgresDatabase::ServerAddress().empty()) GTEST_SKIP() << "needs a PostgreSQL server: VANTREL_POSTGRES is not set"

namespace vantrel::test {

/// An empty database. Dropped with this object, even if something is still connected to it.
class PostgresDatabase {
 public:
  static std::string ServerAddress() {
    const char* address = std::getenv("VANTREL_POSTGRES");
    return address ? address : "";
  }

  PostgresDatabase() : mName("test" + std::to_string(std::random_device()()) + "x" + std::to_string(std::random_device()())) {
    OnServer("CREATE DATABASE " + mName);
    const std::string server = ServerAddress();
    mAddress = server.substr(0, server.rfind('/') + 1) + mName;
  }
  PostgresDatabase(const PostgresDatabase&) = delete;
  PostgresDatabase& operator=(const PostgresDatabase&) = delete;
  ~PostgresDatabase() {
    try {
      OnServer("DROP DATABASE " + mName + " WITH (FORCE)");
    } catch (const Error& error) {
      ADD_FAILURE() << error.Description;
    }
  }

  const std::string& Address() const { return mAddress; }

  /// Ends all sessions in the database, as a shutdown of the server does, and waits until they are gone.
  void EndSessions() const { OnServer("SELECT pg_terminate_backend(pid, 10000) FROM pg_stat_activity WHERE datname = '" + mName + "'"); }

 private:
  static void OnServer(const std::string& pstrStatement) {
    PostgresSession session(10'000);
    session.Open(ServerAddress());
    session.RunScript(pstrStatement);
  }

  std::string mName, mAddress;
};

}  // namespace vantrel::test

#endif

// Real databases of each engine.
#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <random>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "database/PostgresServer.h"
#include "database/sqlite/Sqlite.h"
#include "model/TestHost.h"
#include "persistence/VNTRDB.h"
#include "util/MessageRecorder.h"

#ifdef VANTREL_HAS_POSTGRES
#include "database/postgres/Postgres.h"
#endif

namespace vantrel::test {

inline std::string TextOfFile(const std::string& pstrPath) {
  std::ifstream file(pstrPath);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

inline std::string SchemaOf(const std::string& pstrEngine) {
  return TextOfFile(std::string(VANTREL_SCHEMA_DIR) + "/" + pstrEngine + ".sql");
}

/// A new database with the tables, gone with this object.
class StoredDatabase {
 public:
  StoredDatabase() = default;
  StoredDatabase(const StoredDatabase&) = delete;
  StoredDatabase& operator=(const StoredDatabase&) = delete;
  virtual ~StoredDatabase() = default;
  virtual std::shared_ptr<Connection> Connect() const = 0;
  /// Upgrades tables of the previous version to the newest one.
  virtual void Upgrade() const = 0;
};

class SqliteStore final : public StoredDatabase {
 public:
  explicit SqliteStore(const std::string& pstrSchema = SchemaOf("sqlite"))
      : mFolder(std::filesystem::path(testing::TempDir()) / ("vantrel" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(mFolder);
    CreateSqlite(File(), pstrSchema);
  }
  ~SqliteStore() override { std::filesystem::remove_all(mFolder); }
  std::shared_ptr<Connection> Connect() const override { return OpenSqlite(File()); }
  void Upgrade() const override { UpgradeSqlite(File(), SchemaOf("upgrade-sqlite"), SchemaOf("sqlite")); }

 private:
  std::string File() const { return (mFolder / "store.db").string(); }
  std::filesystem::path mFolder;
};

#ifdef VANTREL_HAS_POSTGRES
class PostgresStore final : public StoredDatabase {
 public:
  explicit PostgresStore(const std::string& pstrSchema = SchemaOf("postgres")) { CreatePostgres(Database.Address(), pstrSchema); }
  std::shared_ptr<Connection> Connect() const override { return OpenPostgres(Database.Address()); }
  void Upgrade() const override { UpgradePostgres(Database.Address(), SchemaOf("upgrade-postgres")); }
  PostgresDatabase Database;
};
#endif

/// Runs on every engine; on PostgreSQL when there is a server.
class EveryEngine : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    if (GetParam() == "sqlite") {
      mobjStore = std::make_unique<SqliteStore>(Schema());
    } else {
#ifdef VANTREL_HAS_POSTGRES
      VANTREL_NEEDS_POSTGRES();
      mobjStore = std::make_unique<PostgresStore>(Schema());
#else
      GTEST_SKIP() << "built without PostgreSQL";
#endif
    }
    Database.Connection = mobjStore->Connect();
  }

  DesignerStateScope State;
  MessageRecorder Messages;
  VNTRDB Database;

  const StoredDatabase& Store() const { return *mobjStore; }
  /// Of the tables that each test begins with.
  virtual std::string Schema() const { return SchemaOf(GetParam()); }

 private:
  std::unique_ptr<StoredDatabase> mobjStore;
};

}  // namespace vantrel::test

#define VANTREL_ON_EVERY_ENGINE(Suite) \
  INSTANTIATE_TEST_SUITE_P(Engines, Suite, testing::Values("sqlite", "postgres"), [](const auto& engine) { return engine.param; })

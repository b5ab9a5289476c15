#include "database/sqlite/Sqlite.h"

#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <unistd.h>

#include "database/ConnectionContract.h"
#include "database/EngineConnection.h"
#include "database/sqlite/SqliteSession.h"
#include "util/Error.h"

namespace vantrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string Schema() {
  std::ifstream file(VANTREL_SCHEMA_DIR "/sqlite.sql");
  return {std::istreambuf_iterator<char>(file), {}};
}

// A new folder, open to every user.
class Folder {
 public:
  Folder() {
    static std::atomic<int> number = 0;
    mPath = std::filesystem::temp_directory_path() / ("vantrel-sqlite-" + std::to_string(getpid()) + "-" + std::to_string(++number));
    std::filesystem::create_directory(mPath);
    std::filesystem::permissions(mPath, std::filesystem::perms::all);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }

  std::string File(const char* pstrName = "net #1%.db") const { return (mPath / pstrName).string(); }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(mPath)) names.push_back(entry.path().filename().string());
    return names;
  }
  const std::filesystem::path& Path() const { return mPath; }

 private:
  std::filesystem::path mPath;
};

class SqliteContractDatabase final : public ContractDatabase {
 public:
  SqliteContractDatabase() { CreateSqlite(mFolder.File(), Schema()); }
  std::shared_ptr<Connection> Connect() override { return OpenSqlite(mFolder.File()); }

 private:
  Folder mFolder;
};

INSTANTIATE_TEST_SUITE_P(Sqlite, ConnectionContract,
                         testing::Values(ContractEngine{"Sqlite", [] { return std::make_unique<SqliteContractDatabase>(); }, ""}),
                         testing::PrintToStringParamName());

// Permissions do not bind the superuser, so the process is another user while this lives.
class OrdinaryUser {
 public:
  OrdinaryUser() : mblnChanged(geteuid() == 0 && seteuid(65534) == 0) {}
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (mblnChanged && seteuid(0) != 0) std::abort();
  }

 private:
  const bool mblnChanged;
};

// SQLite itself, for what other programs do to a file.
void RunRaw(const std::string& pstrFile, const char* pstrSql, const std::function<void()>& pobjMeanwhile = {}) {
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(pstrFile.c_str(), &database), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(database, pstrSql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
  if (pobjMeanwhile) pobjMeanwhile();
  sqlite3_close(database);
}

void AddCase(Connection& pobjConnection, int plngId) {
  pobjConnection.Execute("INSERT INTO Workcase(Id, OrderItemId ) VALUES(" + std::to_string(plngId) + ", 0)");
}

struct Sqlite : testing::Test {
  void Create() { CreateSqlite(Home.File(), Schema()); }
  std::vector<std::string> Cases() { return Column(*OpenSqlite(Home.File()), "SELECT Id FROM Workcase ORDER BY Id", "Id"); }

  Folder Home;
};

// One clear message that names the file.
void ExpectProblem(const std::function<void()>& pobjAction, const std::string& pstrFile, const char* pstrWhat) {
  std::string why;
  EXPECT_EQ(ErrorOf(pobjAction, &why), vntErrDatabase) << pstrWhat;
  EXPECT_THAT(why, testing::AllOf(HasSubstr("\"" + pstrFile + "\""), HasSubstr(pstrWhat)));
}

TEST_F(Sqlite, FilesThatAreNoDatabaseAreNamedWithTheReason) {
  std::ofstream(Home.File("text.db")) << std::string(5000, 'x');
  std::ofstream(Home.File("empty.db")).close();
  const std::pair<std::string, const char*> cases[] = {{Home.File("none.db"), "no such file"},
                                                       {Home.File("none/none.db"), "no folder"},
                                                       {Home.Path().string(), "folder"},
                                                       {"", "cannot be opened"},
                                                       {Home.File("text.db"), "is not a database"},
                                                       {Home.File("empty.db"), "is not a database"}};
  for (const auto& [file, what] : cases) ExpectProblem([&name = file] { OpenSqlite(name); }, file, what);
  ExpectProblem([&] { CreateSqlite(Home.File("text.db"), Schema()); }, Home.File("text.db"), "is not a database");
  EXPECT_THAT(Home.Names(), testing::UnorderedElementsAre("text.db", "empty.db"));
}

TEST_F(Sqlite, DamageIsReportedAndNotRead) {
  Create();
  {
    std::fstream file(Home.File(), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(4096);
    file << std::string(std::filesystem::file_size(Home.File()) - 4096, '\x5A');
  }
  ExpectProblem([&] { AddCase(*OpenSqlite(Home.File()), 1); }, Home.File(), "is damaged");
}

TEST_F(Sqlite, CreatingIsAllOrNothing) {
  EXPECT_EQ(ErrorOf([&] { CreateSqlite(Home.File(), Schema() + "CREATE NONSENSE;"); }), vntErrStatement);
  EXPECT_THAT(Home.Names(), IsEmpty());
  ExpectProblem([&] { CreateSqlite(Home.File("none/none.db"), Schema()); }, Home.File("none/none.db"), "no folder");

  RunRaw(Home.File(), "CREATE TABLE Other (Id INTEGER)");
  EXPECT_EQ(ErrorOf([&] { CreateSqlite(Home.File(), Schema() + "CREATE NONSENSE;"); }), vntErrStatement);
  RunRaw(Home.File(), "CREATE TABLE Workcase (Id INTEGER); DROP TABLE Workcase; INSERT INTO Other VALUES (1)");
  Create();
  AddCase(*OpenSqlite(Home.File()), 1);
  ExpectProblem([&] { Create(); }, Home.File(), "has the tables already");
  EXPECT_THAT(Cases(), ElementsAre("1"));
}

TEST_F(Sqlite, NamesThatTheEngineTakesSpeciallyAreFiles) {
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(Home.Path());
  for (const char* name : {":memory:", "file:net.db", "file:net.db?mode=memory"}) {
    SCOPED_TRACE(name);
    CreateSqlite(name, Schema());
    EXPECT_TRUE(std::filesystem::exists(Home.Path() / name));
    OpenSqlite(name)->Execute("INSERT INTO Workcase (Id, OrderItemId) VALUES (1, 1)");
  }
  EXPECT_FALSE(std::filesystem::exists(Home.File("net.db")));
  std::filesystem::current_path(before);
}

TEST_F(Sqlite, OfSeveralWhoMakeTheSameFileOneSucceedsAndNothingStoredIsLost) {
  for (int round = 0; round < 20; ++round) {
    const std::string path = Home.File(("race" + std::to_string(round) + ".db").c_str());
    std::atomic<int> made = 0;
    std::vector<std::thread> makers;
    for (int i = 0; i < 4; ++i) {
      makers.emplace_back([&] {
        try {
          CreateSqlite(path, Schema());
          ++made;
        } catch (const Error& error) {
          EXPECT_THAT(error.Description, HasSubstr("has the tables already"));
        }
        OpenSqlite(path)->Execute("DELETE * FROM Workcase WHERE Id = 1");
      });
    }
    for (auto& maker : makers) maker.join();
    EXPECT_EQ(made, 1);
  }
}

TEST_F(Sqlite, AWriterThatWaitsTooLongIsToldThatTheFileIsLocked) {
  Create();
  RunRaw(Home.File(), "BEGIN IMMEDIATE", [&] {
    const auto connection = OpenSqlite(Home.File(), {.BusyTimeout = 1});
    ExpectProblem([&] { connection->BeginTrans(Transaction::Write); }, Home.File(), "is locked");
    ExpectProblem([&] { AddCase(*connection, 1); }, Home.File(), "is locked");
    connection->BeginTrans(Transaction::Read);
    EXPECT_EQ(Opened(*connection, "Workcase")->RecordCount(), 0);
    connection->CommitTrans();
  });
}

TEST_F(Sqlite, AFullDiskIsNamedAndNothingIsSavedByHalves) {
  Create();
  auto session = std::make_unique<SqliteSession>(SqliteOptions());
  session->Open(Home.File());
  session->RunScript("PRAGMA max_page_count = 60");
  EngineConnection connection(std::move(session), Home.File());
  AddCase(connection, 1);

  connection.BeginTrans(Transaction::Write);
  AddCase(connection, 2);
  const std::string text(1'000'000, 'x');
  ExpectProblem([&] { connection.Execute("INSERT INTO Arc (Guard) VALUES ('" + text + "')"); }, Home.File(), "disk is full");
  const bool isLost = connection.IsTransactionLost();
  EXPECT_EQ(ErrorOf([&] { AddCase(connection, 3); }), isLost ? vntErrObjectClosed : 0);
  EXPECT_EQ(ErrorOf([&] { connection.CommitTrans(); }), isLost ? vntErrDatabase : 0);
  EXPECT_THAT(Cases(), isLost ? std::vector<std::string>{"1"} : std::vector<std::string>({"1", "2", "3"}));
}

TEST_F(Sqlite, ReadOnlyFilesAndFoldersCanBeRead) {
  Create();
  AddCase(*OpenSqlite(Home.File()), 1);
  std::filesystem::permissions(Home.File(), std::filesystem::perms{0444});
  for (const bool isFolderReadOnly : {false, true}) {
    if (isFolderReadOnly) {
      std::filesystem::remove(Home.File() + "-wal");
      std::filesystem::remove(Home.File() + "-shm");
      std::filesystem::permissions(Home.Path(), std::filesystem::perms{0555});
    }
    const OrdinaryUser user;
    const auto connection = OpenSqlite(Home.File());
    connection->BeginTrans(Transaction::Read);
    EXPECT_THAT(Column(*connection, "SELECT Id FROM Workcase", "Id"), ElementsAre("1"));
    connection->CommitTrans();
    ExpectProblem([&] { AddCase(*connection, 2); }, Home.File(), "is read-only");
    ExpectProblem(
        [&] {
          connection->BeginTrans(Transaction::Write);
          AddCase(*connection, 2);
        },
        Home.File(), "is read-only");
    connection->RollbackTrans();
  }
  std::filesystem::permissions(Home.File(), std::filesystem::perms::none);
  const OrdinaryUser user;
  ExpectProblem([&] { OpenSqlite(Home.File()); }, Home.File(), "access is denied");
}

// A reader who may not write takes no lock. It sees a whole state, the old one or the new one, or is told.
TEST_F(Sqlite, ReadersWhoMayNotWriteNoticeWhatOthersWrite) {
  Create();
  AddCase(*OpenSqlite(Home.File()), 1);
  std::filesystem::permissions(Home.Path(), std::filesystem::perms{0755});
  std::filesystem::permissions(Home.File(), std::filesystem::perms{0644});
  const auto reader = [&] {
    const OrdinaryUser user;
    return OpenSqlite(Home.File());
  }();
  const auto cases = [&] {
    const OrdinaryUser user;
    return Column(*reader, "SELECT Id FROM Workcase", "Id");
  };
  EXPECT_THAT(cases(), ElementsAre("1"));
  AddCase(*OpenSqlite(Home.File()), 2);
  EXPECT_THAT(cases(), ElementsAre("1", "2"));
  const auto writer = OpenSqlite(Home.File());
  AddCase(*writer, 3);
  EXPECT_THAT(cases(), ElementsAre("1", "2", "3"));
  writer->Execute("DELETE * FROM Workcase WHERE Id = 1");
  EXPECT_THAT(cases(), ElementsAre("2", "3"));
}

TEST_F(Sqlite, AReadingTransactionThatOthersWriteUnderIsToldSo) {
  Create();
  AddCase(*OpenSqlite(Home.File()), 1);
  std::filesystem::permissions(Home.Path(), std::filesystem::perms{0755});
  std::filesystem::permissions(Home.File(), std::filesystem::perms{0644});
  std::shared_ptr<Connection> reader;
  {
    const OrdinaryUser user;
    if (geteuid() == 0) GTEST_SKIP() << "everybody may write here";
    reader = OpenSqlite(Home.File());
    reader->BeginTrans(Transaction::Read);
  }
  AddCase(*OpenSqlite(Home.File()), 2);
  const OrdinaryUser user;
  ExpectProblem([&] { Column(*reader, "SELECT Id FROM Workcase", "Id"); }, Home.File(), "cannot be read now");
  reader->RollbackTrans();
  EXPECT_THAT(Column(*reader, "SELECT Id FROM Workcase", "Id"), ElementsAre("1", "2"));
}

// Runs before and after a limit are the same: a disk that fills up at any moment leaves no file, or one that is whole.
TEST_F(Sqlite, AFileThatDoesNotFitTheDiskIsNotMade) {
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  int made = 0;
  for (rlim_t size = 4096; size < 400'000 && made < 2; size += 20'000) {
    const rlimit full{size, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    const bool failed = ErrorOf([&] { Create(); }) != 0;
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(std::filesystem::is_empty(Home.Path()), failed) << size;
    if (failed) continue;
    ++made;
    AddCase(*OpenSqlite(Home.File()), 1);
    std::filesystem::remove(Home.File());
  }
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(made, 2);
}

TEST_F(Sqlite, AnIdBeyond32BitsIsRefusedAndLeavesNoRow) {
  Create();
  const auto connection = OpenSqlite(Home.File());
  RunRaw(Home.File(), "INSERT INTO Arc (Id) VALUES (2147483647)");
  EXPECT_EQ(ErrorOf([&] { Add(*connection, "Arc", {{"Guard", "x"}}); }), vntErrOverflow);
  EXPECT_THAT(Column(*connection, "SELECT * FROM Arc", "Id"), ElementsAre("2147483647"));
}

TEST_F(Sqlite, StatementsAreForgottenBeforeTheyPileUp) {
  Create();
  const auto connection = OpenSqlite(Home.File());
  for (int i = 0; i < 500; ++i) {
    const std::string alias = "a" + std::to_string(i);
    EXPECT_TRUE(Opened(*connection, "SELECT MAX(Id) AS " + alias + " FROM Arc")->Fields(alias).Value.IsNull());
  }
}

TEST_F(Sqlite, TablesThatChangeUnderAPreparedStatementAreSeen) {
  Create();
  const auto connection = OpenSqlite(Home.File());
  AddCase(*connection, 1);
  EXPECT_THAT(Column(*connection, "SELECT * FROM Workcase", "Id"), ElementsAre("1"));
  RunRaw(Home.File(), "ALTER TABLE Workcase ADD COLUMN Extra BOOLEAN DEFAULT 1");
  EXPECT_EQ(Opened(*connection, "SELECT * FROM Workcase")->Fields("Extra").Value, Variant(true));
}

}  // namespace
}  // namespace vantrel::test

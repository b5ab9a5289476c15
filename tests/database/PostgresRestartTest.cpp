// A server that goes away and comes back. The test has its own server, as others use the common one.
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include "database/ConnectionContract.h"
#include "database/PostgresServer.h"
#include "database/postgres/Postgres.h"
#include "util/Error.h"

namespace vantrel::test {
namespace {

class OwnServer {
 public:
  OwnServer() : mFolder((std::filesystem::temp_directory_path() / "vantrel-XXXXXX").string()) {
    if (mkdtemp(mFolder.data()) == nullptr) throw Error(vntErrDatabase, "no temporary folder");
    mAddress = Call("start", " $PPID");
  }
  OwnServer(const OwnServer&) = delete;
  OwnServer& operator=(const OwnServer&) = delete;
  ~OwnServer() { Call("stop"); }

  const std::string& Address() const { return mAddress; }
  void Pause() const { Call("pause"); }
  void Resume() const { Call("resume"); }

 private:
  std::string Call(const std::string& pstrCommand, const std::string& pstrRest = {}) const {
    const std::string line = "'" VANTREL_SCRIPTS_DIR "/postgres-server' " + pstrCommand + " '" + mFolder + "'" + pstrRest;
    const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(line.c_str(), "r"), pclose);
    std::array<char, 200> text{};
    if (!output || std::fgets(text.data(), text.size(), output.get()) == nullptr) return {};
    const std::string said = text.data();
    return said.substr(0, said.find('\n'));
  }

  std::string mFolder, mAddress;
};

TEST(PostgresRestart, TheConnectionReportsItsServerGoneAndFindsItAgain) {
  VANTREL_NEEDS_POSTGRES();
  const OwnServer server;
  ASSERT_THAT(server.Address(), testing::StartsWith("postgresql://"));
  CreatePostgres(server.Address(), "CREATE TABLE workcase (id integer PRIMARY KEY, orderitemid integer)");
  const auto connection = OpenPostgres(server.Address());
  connection->Execute("INSERT INTO Workcase (Id) VALUES (1)");

  server.Pause();
  std::string why;
  EXPECT_EQ(ErrorOf([&] { connection->Execute("INSERT INTO Workcase (Id) VALUES (2)"); }, &why), vntErrObjectClosed);
  EXPECT_EQ(ErrorOf([&] { connection->Open(); }, &why), vntErrDatabase);
  EXPECT_THAT(why, testing::HasSubstr(server.Address()));
  EXPECT_THAT(why, testing::HasSubstr("refused"));

  server.Resume();
  connection->Open();
  connection->Execute("INSERT INTO Workcase (Id) VALUES (3)");
  EXPECT_THAT(Column(*connection, "SELECT Id FROM Workcase ORDER BY Id", "Id"), testing::ElementsAre("1", "3"));
}

}  // namespace
}  // namespace vantrel::test

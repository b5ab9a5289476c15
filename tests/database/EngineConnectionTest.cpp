#include "database/EngineConnection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "database/ConnectionContract.h"
#include "database/SqliteDialect.h"
#include "util/Error.h"

namespace vantrel::test {
namespace {

using testing::ElementsAre;

// Records what it is asked, and fails when told to.
class FakeSession final : public Session {
 public:
  struct Script {
    std::vector<std::string> Calls;
    bool IsOpen = true;
    bool IsInTransaction = false;
    bool LosesItself = false;      // at the next call: as when a server is gone
    bool EndsTransaction = false;  // at the next call: as when a disk is full
  };

  explicit FakeSession(Script& pobjScript) : mScript(pobjScript) {}

  const vantrel::Dialect& Dialect() const override { return mDialect; }
  void Open(const std::string& pstrAddress) override {
    mScript.Calls.push_back("open " + pstrAddress);
    mScript.IsOpen = true;
  }
  void Close() noexcept override { mScript.IsOpen = mScript.IsInTransaction = false; }
  bool IsOpen() const override { return mScript.IsOpen; }
  std::int64_t Run(const EngineStatement& pobjStatement) override { return Note(pobjStatement.Text), 1; }
  EngineRows Query(const EngineStatement& pobjStatement) override {
    Note(pobjStatement.Text);
    return {{"Id", "Name"}, {std::int32_t{1}, "a"}};
  }
  std::int32_t Insert(const EngineStatement& pobjStatement) override { return Note(pobjStatement.Text), 9; }
  void RunScript(const std::string&) override {}
  void Begin(Transaction pTransaction) override {
    Note(pTransaction == Transaction::Write ? "begin write" : "begin read");
    mScript.IsInTransaction = true;
  }
  void Commit() override {
    Note("commit");
    mScript.IsInTransaction = false;
  }
  void Rollback() noexcept override {
    mScript.Calls.emplace_back("rollback");
    mScript.IsInTransaction = false;
  }
  bool IsInTransaction() const override { return mScript.IsInTransaction; }

 private:
  void Note(const std::string& pstrCall) {
    if (std::exchange(mScript.LosesItself, false)) {
      Close();
      throw Error(vntErrObjectClosed, "The server is gone.");
    }
    if (std::exchange(mScript.EndsTransaction, false)) {
      mScript.IsInTransaction = false;
      throw Error(vntErrDatabase, "The disk is full.");
    }
    mScript.Calls.push_back(pstrCall);
  }

  Script& mScript;
  SqliteDialect mDialect;
};

struct EngineConnectionTest : testing::Test {
  void Execute() { Connection.Execute("DELETE * FROM T"); }

  FakeSession::Script Script;
  EngineConnection Connection{std::make_unique<FakeSession>(Script), "here"};
};

TEST_F(EngineConnectionTest, OnlyTheOutermostTransactionReachesTheEngine) {
  Connection.BeginTrans(Transaction::Write);
  Connection.BeginTrans(Transaction::Write);
  Execute();
  Connection.CommitTrans();
  Connection.CommitTrans();
  Connection.RollbackTrans();
  EXPECT_EQ(ErrorOf([&] { Connection.CommitTrans(); }), vntErrInvalidCall);
  EXPECT_THAT(Script.Calls, ElementsAre("begin write", "DELETE FROM \"T\"", "commit"));
}

TEST_F(EngineConnectionTest, AnInnerRollbackUndoesTheWholeAtOnce) {
  Connection.BeginTrans(Transaction::Write);
  Connection.BeginTrans(Transaction::Write);
  Connection.RollbackTrans();
  EXPECT_EQ(ErrorOf([&] { Execute(); }), vntErrObjectClosed);
  EXPECT_EQ(ErrorOf([&] { Connection.BeginTrans(Transaction::Write); }), vntErrObjectClosed);
  EXPECT_EQ(ErrorOf([&] { Connection.CommitTrans(); }), vntErrDatabase);
  EXPECT_FALSE(Connection.IsTransactionLost());
  Execute();
  EXPECT_THAT(Script.Calls, ElementsAre("begin write", "rollback", "DELETE FROM \"T\""));
}

TEST_F(EngineConnectionTest, ALostTransactionStaysLostThoughTheConnectionIsOpenedAnew) {
  for (bool FakeSession::Script::*loss : {&FakeSession::Script::LosesItself, &FakeSession::Script::EndsTransaction}) {
    Connection.BeginTrans(Transaction::Write);
    Connection.BeginTrans(Transaction::Write);
    Script.*loss = true;
    EXPECT_NE(ErrorOf([&] { Execute(); }), 0);
    Connection.Open();
    Script.Calls.clear();

    EXPECT_TRUE(Connection.IsTransactionLost());
    std::string why;
    EXPECT_EQ(ErrorOf([&] { Execute(); }, &why), vntErrObjectClosed);
    EXPECT_THAT(why, testing::AnyOf(testing::HasSubstr("server is gone"), testing::HasSubstr("disk is full")));
    EXPECT_EQ(ErrorOf([&] { Opened(Connection, "SELECT * FROM T"); }), vntErrNoConnection);
    EXPECT_EQ(ErrorOf([&] { Opened(Connection, "T"); }), vntErrNoConnection);
    Connection.CommitTrans();
    EXPECT_EQ(ErrorOf([&] { Connection.CommitTrans(); }), vntErrDatabase);
    EXPECT_TRUE(Script.Calls.empty());
    Execute();
    Script.Calls.clear();
  }
}

TEST_F(EngineConnectionTest, AClosedConnectionIsOpenedByItsUserOrByATransaction) {
  Script.LosesItself = true;
  std::string why;
  EXPECT_EQ(ErrorOf([&] { Opened(Connection, "SELECT * FROM T"); }, &why), vntErrNoConnection);
  EXPECT_EQ(why, "The server is gone.");
  EXPECT_EQ(ErrorOf([&] { Execute(); }), vntErrObjectClosed);
  EXPECT_EQ(ErrorOf([&] { Opened(Connection, "SELECT * FROM T"); }), vntErrNoConnection);
  Connection.BeginTrans(Transaction::Read);
  Connection.RollbackTrans();
  Script.LosesItself = true;
  Connection.BeginTrans(Transaction::Write);
  Connection.CommitTrans();
  Connection.Open();
  Connection.Open("there");
  EXPECT_THAT(Script.Calls, ElementsAre("open here", "begin read", "rollback", "open here", "begin write", "commit", "open there"));
  EXPECT_EQ(ErrorOf([&] { Connection.Open("", "me", "secret"); }), vntErrInvalidCall);
}

TEST_F(EngineConnectionTest, ACommitThatFailsEndsTheTransaction) {
  Connection.BeginTrans(Transaction::Write);
  Script.EndsTransaction = true;
  EXPECT_EQ(ErrorOf([&] { Connection.CommitTrans(); }), vntErrDatabase);
  Connection.BeginTrans(Transaction::Write);
  Connection.CommitTrans();
  EXPECT_THAT(Script.Calls, ElementsAre("begin write", "begin write", "commit"));
}

TEST_F(EngineConnectionTest, AddingToATableReadsNoneOfItsRows) {
  for (int i = 0; i < 2; ++i) {
    const auto rows = Opened(Connection, "T");
    rows->AddNew();
    rows->Collect("name", "x");
    rows->Update();
    EXPECT_EQ(rows->Fields("ID").Value, Variant(std::int32_t{9}));
    EXPECT_EQ(rows->Fields("Name").Value, Variant("x"));
  }
  const std::string columns = "SELECT * FROM \"T\" WHERE ? = ?", insert = "INSERT INTO \"T\" (\"Name\") VALUES (?)";
  EXPECT_THAT(Script.Calls, ElementsAre(columns, insert, insert));
}

TEST_F(EngineConnectionTest, WhatWasAssignedAndNotWrittenIsForgotten) {
  const auto rows = Opened(Connection, "SELECT * FROM T");
  rows->AddNew();
  rows->Collect("Name", "x");
  rows->MoveNext();
  EXPECT_EQ(rows->Fields("Name").Value, Variant("a"));
  rows->Update();
  EXPECT_EQ(rows->RecordCount(), 1);
  EXPECT_THAT(Script.Calls, ElementsAre("SELECT * FROM \"T\""));
}

TEST_F(EngineConnectionTest, ARowIsWrittenOnlyWhereThatCanChangeIt) {
  const auto writes = [this](const Variant& pvarId, const Variant& pvarName, bool pblnBetween) {
    const auto rows = Opened(Connection, "SELECT * FROM T WHERE Id = 1");
    rows->Collect("Id", pvarId);
    rows->Collect("Name", pvarName);
    if (pblnBetween) Execute();
    Script.Calls.clear();
    rows->Update();
    EXPECT_EQ(rows->Fields("Name").Value, pvarName);
    return !Script.Calls.empty();
  };
  const std::int32_t one = 1;
  EXPECT_TRUE(writes(one, "a", false)) << "outside a transaction others may have written";
  Connection.BeginTrans(Transaction::Write);
  EXPECT_FALSE(writes(one, "a", false));
  EXPECT_FALSE(writes(1.0, "a", false)) << "numbers of another kind";
  EXPECT_TRUE(writes(one, "b", false));
  EXPECT_TRUE(writes(one, Variant::Null, false));
  EXPECT_TRUE(writes("1", "a", false)) << "only the column knows";
  EXPECT_TRUE(writes(one, "a", true)) << "a statement may have written meanwhile";
}

}  // namespace
}  // namespace vantrel::test

#include "database/ConnectionContract.h"

#include <future>

#include <gmock/gmock.h>

#include "util/Error.h"

namespace vantrel::test {

using testing::ElementsAre;
using testing::IsEmpty;

void ConnectionContract::SetUp() {
  if (!GetParam().Make) GTEST_SKIP() << GetParam().WhyMissing;
  mobjDatabase = GetParam().Make();
  mobjConnection = mobjDatabase->Connect();
  AddWorkflow(*mobjConnection, 1);
}

std::unique_ptr<Recordset> Opened(Connection& pobjConnection, const std::string& pstrSource) {
  auto rows = pobjConnection.NewRecordset();
  rows->Open(pstrSource);
  return rows;
}

std::vector<std::string> Column(Connection& pobjConnection, const std::string& pstrSql, const std::string& pstrName) {
  std::vector<std::string> texts;
  const auto rows = Opened(pobjConnection, pstrSql);
  for (; !rows->Eof(); rows->MoveNext()) {
    const Variant& value = rows->Fields(pstrName).Value;
    texts.push_back(value.IsNull() ? "NULL" : value.ToText());
  }
  return texts;
}

std::int32_t ErrorOf(const std::function<void()>& pobjAction, std::string* pstrDescription) {
  try {
    pobjAction();
  } catch (const Error& error) {
    if (pstrDescription != nullptr) *pstrDescription = error.Description;
    return error.Number;
  }
  return 0;
}

std::int32_t Add(Connection& pobjConnection, const std::string& pstrTable, const Assignments& pcolValues) {
  const auto row = Opened(pobjConnection, pstrTable);
  row->AddNew();
  for (const auto& [name, value] : pcolValues) row->Collect(name, value);
  row->Update();
  return row->Fields("Id").Value.ToInt32();
}

void AddWorkflow(Connection& pobjConnection, std::int32_t plngId) {
  pobjConnection.Execute("INSERT INTO Workflow (Id, CaseTracking, KeepHistory, ShowGuards, ShowWeights, RunStyle, LockControls) VALUES (" +
                         std::to_string(plngId) + ", False, False, False, False, 0, False)");
}

std::int32_t AddArc(Connection& pobjConnection, const char* pstrGuard) {
  return Add(pobjConnection, "Arc", {{"WorkflowId", std::int32_t{1}}, {"Guard", pstrGuard}});
}

void AddDefinition(Connection& pobjConnection, const std::string& pstrName, int plngIndex) {
  pobjConnection.Execute(
      " INSERT INTO TokenProperty ( PlaceId, Name, [Index], Caption, Description, Type, [Value], Attributes ) VALUES (7,'" + pstrName +
      "', " + std::to_string(plngIndex) + ", 'c', '', 8, 'v', 0)");
}

TEST_P(ConnectionContract, RowSetsWalkChangeAndRefuse) {
  const auto rows = mobjConnection->NewRecordset();
  EXPECT_EQ(ErrorOf([&] { rows->Eof(); }), vntErrObjectClosed);
  EXPECT_EQ(ErrorOf([&] { rows->Open("SELECT * FROM Nowhere"); }), vntErrStatement);

  AddArc(*mobjConnection, "a");
  const std::int32_t second = AddArc(*mobjConnection, "b");
  rows->Open("SELECT * FROM Arc WHERE WorkflowId = 1 ORDER BY Id");
  rows->MoveNext();
  rows->Collect("Guard", "changed");
  EXPECT_EQ(rows->Fields("Guard").Value.ToText(), "changed");
  rows->Update();
  EXPECT_EQ(ErrorOf([&] { rows->Fields("Colour"); }), vntErrNoSuchColumn);
  EXPECT_EQ(ErrorOf([&] { rows->Collect("Colour", 1.0); }), vntErrNoSuchColumn);
  EXPECT_THAT(Column(*mobjConnection, "SELECT Guard FROM Arc ORDER BY Id", "Guard"), ElementsAre("a", "changed"));

  mobjConnection->Execute("DELETE * FROM Arc WHERE Id = " + std::to_string(second));
  rows->Collect("Guard", "too late");
  EXPECT_EQ(ErrorOf([&] { rows->Update(); }), vntErrNoCurrentRow);
  rows->MoveNext();
  EXPECT_TRUE(rows->Eof());
  EXPECT_EQ(rows->RecordCount(), 2);
  for (const std::function<void()>& action :
       {std::function<void()>([&] { rows->MoveNext(); }), std::function<void()>([&] { rows->Fields("Id"); }),
        std::function<void()>([&] { rows->Collect("Guard", ""); }), std::function<void()>([&] { rows->Update(); })}) {
    EXPECT_EQ(ErrorOf(action), vntErrNoCurrentRow);
  }
}

TEST_P(ConnectionContract, RowsAddedToATableStandBehindItsOwn) {
  AddArc(*mobjConnection, "first");
  const auto rows = Opened(*mobjConnection, "arc");
  for (const char* guard : {"second", "third"}) {
    rows->AddNew();
    rows->Collect("guard", "overwritten");
    rows->Collect("Guard", guard);
    rows->Update();
    EXPECT_EQ(rows->Fields("Guard").Value.ToText(), guard);
  }
  const std::int32_t last = rows->Fields("Id").Value.ToInt32();
  EXPECT_EQ(rows->RecordCount(), 3);
  EXPECT_EQ(rows->Fields("Id").Value.ToInt32(), last);
  EXPECT_EQ(ErrorOf([&] { Opened(*mobjConnection, "Nowhere"); }), vntErrStatement);
}

TEST_P(ConnectionContract, RefusedValuesAndStatementsLeaveTheTransactionAsItWas) {
  mobjConnection->BeginTrans(Transaction::Write);
  const std::int32_t id = AddArc(*mobjConnection, "kept");
  std::string why;
  EXPECT_EQ(ErrorOf([&] { mobjConnection->Execute("UPDATE Arc SET Colour = 1"); }, &why), vntErrStatement);
  EXPECT_THAT(why, testing::HasSubstr("olour"));
  EXPECT_EQ(ErrorOf([&] { Add(*mobjConnection, "Place", {{"Name", "p"}}); }), vntErrStatement);
  EXPECT_EQ(ErrorOf([&] { Add(*mobjConnection, "Arc", {{"Id", id}}); }), vntErrStatement);
  EXPECT_FALSE(mobjConnection->IsTransactionLost());
  AddArc(*mobjConnection, "kept too");
  mobjConnection->CommitTrans();
  EXPECT_THAT(Column(*mobjDatabase->Connect(), "SELECT Guard FROM Arc ORDER BY Id", "Guard"), ElementsAre("kept", "kept too"));
}

TEST_P(ConnectionContract, TheOutermostTransactionCounts) {
  const auto other = mobjDatabase->Connect();
  const std::string guards = "SELECT Guard FROM Arc";
  mobjConnection->BeginTrans(Transaction::Write);
  mobjConnection->BeginTrans(Transaction::Read);
  AddArc(*mobjConnection, "a");
  mobjConnection->CommitTrans();
  EXPECT_THAT(Column(*other, guards, "Guard"), IsEmpty());
  mobjConnection->RollbackTrans();
  EXPECT_THAT(Column(*mobjConnection, guards, "Guard"), IsEmpty());

  mobjConnection->BeginTrans(Transaction::Write);
  mobjConnection->BeginTrans(Transaction::Write);
  AddArc(*mobjConnection, "b");
  mobjConnection->RollbackTrans();
  EXPECT_TRUE(mobjConnection->IsTransactionLost());
  EXPECT_EQ(ErrorOf([&] { AddArc(*mobjConnection, "c"); }), vntErrNoConnection);
  EXPECT_NE(ErrorOf([&] { mobjConnection->CommitTrans(); }), 0);
  EXPECT_THAT(Column(*mobjConnection, guards, "Guard"), IsEmpty());

  mobjConnection->BeginTrans(Transaction::Write);
  AddArc(*mobjConnection, "d");
  mobjConnection->CommitTrans();
  EXPECT_THAT(Column(*other, guards, "Guard"), ElementsAre("d"));
}

TEST_P(ConnectionContract, WorkThatWasNotCommittedIsGoneWithItsConnection) {
  auto other = mobjDatabase->Connect();
  other->BeginTrans(Transaction::Write);
  AddArc(*other, "half");
  other.reset();
  mobjConnection->BeginTrans(Transaction::Write);
  EXPECT_THAT(Column(*mobjConnection, "SELECT Guard FROM Arc", "Guard"), IsEmpty());
  mobjConnection->RollbackTrans();
}

TEST_P(ConnectionContract, ReadersSeeTheStateOfTheirBeginningAndChangeNothing) {
  const auto reader = mobjDatabase->Connect();
  reader->BeginTrans(Transaction::Read);
  AddArc(*mobjConnection, "new");
  EXPECT_THAT(Column(*reader, "SELECT Guard FROM Arc", "Guard"), IsEmpty());
  EXPECT_EQ(ErrorOf([&] { reader->BeginTrans(Transaction::Write); }), vntErrInvalidCall);
  EXPECT_EQ(ErrorOf([&] { AddArc(*reader, "refused"); }), vntErrStatement);
  reader->CommitTrans();
  EXPECT_THAT(Column(*reader, "SELECT Guard FROM Arc", "Guard"), ElementsAre("new"));
  AddArc(*reader, "not refused any more");
}

TEST_P(ConnectionContract, WritersWaitForOneAnother) {
  const auto work = [this] {
    const auto connection = mobjDatabase->Connect();
    for (int i = 0; i < 20; ++i) {
      connection->BeginTrans(Transaction::Write);
      const Variant largest = Opened(*connection, "SELECT MAX(Id) AS MaxId FROM Workcase")->Fields("MaxId").Value;
      const std::int32_t next = largest.IsNull() ? 1 : largest.ToInt32() + 1;
      connection->Execute("INSERT INTO Workcase(Id, OrderItemId ) VALUES(" + std::to_string(next) + ", 0)");
      connection->CommitTrans();
    }
  };
  auto other = std::async(std::launch::async, work);
  work();
  other.get();
  EXPECT_EQ(Opened(*mobjConnection, "SELECT MAX(Id) AS MaxId FROM Workcase")->Fields("MaxId").Value, Variant(std::int32_t{40}));
}

}  // namespace vantrel::test

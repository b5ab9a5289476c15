#include <gtest/gtest.h>

#include "model/Nets.h"
#include "persistence/RecordingConnection.h"
#include "persistence/VNTRDB.h"
#include "persistence/WholeSave.h"
#include "util/ErrorOf.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

using Failure = RecordingConnection::Failure;

class SaveFailure : public testing::Test {
 protected:
  SaveFailure() {
    mDatabase.Connection = mobjConnection;
    mobjNet = std::make_shared<Workflow>();
    const auto place = AddPlace(*mobjNet);
    mobjTransition = AddTransition(*mobjNet);
    mobjTransition->Dirty = true;
    const auto arc = Connect(place, mobjTransition);
    arc->InsertVector(arc->Vectors()->First());
    mobjNet->NewNotation();
    mobjNet->Dirty(true);
  }

  bool Logged(const std::string& pstrPiece) const { return mobjConnection->Log.find(pstrPiece) != std::string::npos; }

  DesignerStateScope mState;
  MessageRecorder mMessages;
  std::shared_ptr<RecordingConnection> mobjConnection = std::make_shared<RecordingConnection>();
  std::shared_ptr<Workflow> mobjNet;
  std::shared_ptr<Transition> mobjTransition;
  VNTRDB mDatabase;
};

TEST_F(SaveFailure, OfOneStepIsShownOnceAndTheOthersRun) {
  const char* const pieces[] = {"SELECT * FROM Transition", "Name='T'", "SELECT * FROM Place", "INSERT INTO Vector", "Caption=''  Top="};
  for (const char* piece : pieces) {
    SCOPED_TRACE(piece);
    mMessages.Texts.clear();
    mobjConnection->Log.clear();
    mobjConnection->Failures = {{piece, vntErrStatement, "refused", false, 0}};
    EXPECT_EQ(mDatabase.SaveWorkFlow(mobjNet), 0);
    const bool opensRows = std::string(piece).starts_with("SELECT");
    const std::string ofStep = "Object variable not set";  // the step then misses its row set
    using Texts = std::vector<std::string>;
    const bool twice = std::string(piece) == "INSERT INTO Vector";  // a statement each, and no end of the step
    EXPECT_EQ(mMessages.Texts, opensRows ? (Texts{"refused", ofStep}) : twice ? Texts(2, "refused") : Texts{"refused"});
    EXPECT_TRUE(Logged("DELETE * FROM Notation"));
    EXPECT_FALSE(mobjNet->Dirty());
  }
  EXPECT_EQ(mobjConnection->Rollbacks, 0);
}

TEST_F(SaveFailure, IsShownWhenNoTransactionIsOpen) {
  mobjConnection->Failures = {{"Name='T'", vntErrStatement, "refused", false, 0}};
  std::vector<int> commits;
  const MsgBoxScope box([&](const std::string&, MsgBoxButtons, const std::string&) {
    commits.push_back(mobjConnection->Commits);
    return vntOK;
  });
  mDatabase.SaveWorkFlow(mobjNet);
  EXPECT_EQ(commits, std::vector<int>{1});
}

TEST_F(SaveFailure, OfAnArcPassesAndKeepsWhatWasWritten) {
  mobjConnection->Failures = {{"TransitionId=", vntErrStatement, "no such arc", false, 0}};
  EXPECT_EQ(ErrorOf([&] { mDatabase.SaveWorkFlow(mobjNet); }), vntErrStatement);
  EXPECT_TRUE(mMessages.Texts.empty());
  EXPECT_FALSE(Logged("Vector"));
  EXPECT_EQ(mobjConnection->Commits, 1);
  EXPECT_NE(mobjTransition->RecId, 0);
  EXPECT_TRUE(mobjNet->Dirty());
}

// Every point at which the connection can be lost: nothing was saved, so the objects must look as before.
TEST_F(SaveFailure, LostTransactionPutsIdsAndMarksBack) {
  const char* const pieces[] = {"SELECT MAX", "INSERT INTO Workflow", "SELECT GUID", "DELETE * FROM Place",
                                "Name='P'",   "TransitionId=",        "Vector",      "FROM Notation"};
  for (const std::int32_t number : {std::int32_t{vntErrObjectClosed}, std::int32_t{vntErrNoConnection}, std::int32_t{vntErrDatabase}}) {
    for (const char* piece : pieces) {
      SCOPED_TRACE(piece + std::to_string(number));
      mMessages.Texts.clear();
      mobjConnection->Failures = {{piece, number, "gone", true, 0}};
      EXPECT_EQ(mDatabase.SaveWorkFlow(mobjNet), number);
      EXPECT_EQ(mMessages.Texts, std::vector<std::string>{"gone"});
      EXPECT_EQ(mobjNet->RecId, 0);
      EXPECT_TRUE(mobjNet->GUID.IsEmpty());
      EXPECT_TRUE(mobjNet->Dirty());
      EXPECT_EQ(mobjTransition->RecId, 0);
      EXPECT_TRUE(mobjTransition->Dirty);
      EXPECT_EQ(mobjNet->Places.First()->RecId(), 0);
      EXPECT_EQ(mobjNet->Arcs.First()->RecId, 0);
    }
  }
  EXPECT_EQ(mobjConnection->Commits, 0);
  mobjConnection->Failures.clear();
  EXPECT_EQ(mDatabase.SaveWorkFlow(mobjNet), 0) << "the save can be repeated";
}

TEST_F(SaveFailure, OfBeginOrCommitIsShownAndPutsMarksBack) {
  for (auto* const why : {&mobjConnection->WhyNotBegun, &mobjConnection->WhyNotCommitted}) {
    *why = "disk full";
    mMessages.Texts.clear();
    EXPECT_EQ(mDatabase.SaveWorkFlow(mobjNet), vntErrDatabase);
    EXPECT_EQ(mMessages.Texts, std::vector<std::string>{"disk full"});
    EXPECT_EQ(mobjTransition->RecId, 0);
    EXPECT_TRUE(mobjNet->Dirty());
    why->clear();
  }
}

TEST_F(SaveFailure, ClosedConnectionIsOpenedAgainAndNothingRepeated) {
  mobjNet->RecId = 5;
  mobjConnection->Failures = {{"UPDATE Workflow", vntErrObjectClosed, "closed", false, 0}};
  EXPECT_EQ(mDatabase.SaveWorkFlow(mobjNet), 0);
  EXPECT_EQ(mMessages.Texts, std::vector<std::string>{"closed"});
  EXPECT_TRUE(Logged("LockControls = False WHERE Id = 5\nreopen\n[2] DELETE"));

  mobjNet->Dirty(true);
  mobjConnection->WhyNotReopened = "no server";
  EXPECT_EQ(ErrorOf([&] { mDatabase.SaveWorkFlow(mobjNet); }), vntErrDatabase);
  EXPECT_EQ(mMessages.Texts.size(), 2U);
}

TEST_F(SaveFailure, WithoutConnectionSaysSoAndRunsNothing) {
  mDatabase.Connection = nullptr;
  EXPECT_EQ(mDatabase.SaveWorkFlow(mobjNet), 999);
  EXPECT_EQ(mDatabase.SaveWorkcase(NewCase("A")), Variant(999));
  const char* const text = "A database connection can not be detected.  The save operation has been aborted.";
  EXPECT_EQ(mMessages.Texts, std::vector<std::string>(2, text));
  EXPECT_EQ(mMessages.Titles.front(), "");
}

TEST_F(SaveFailure, OfATokenLeavesAllTokensOfTheCaseAsTheyWere) {
  const auto place = mobjNet->Places.First();
  const auto workCase = NewCase("A");
  const auto first = mobjNet->CreateToken(place, nullptr, workCase), second = mobjNet->CreateToken(place, nullptr, workCase);
  first->Dirty = true;
  mobjConnection->Failures = {{"INSERT INTO Token", vntErrObjectClosed, "gone", true, 1}};
  EXPECT_EQ(mDatabase.SaveToken(first), Variant(vntErrObjectClosed));
  EXPECT_EQ(first->RecId, 0);
  EXPECT_TRUE(first->Dirty);
  mobjConnection->Failures = {{"INSERT INTO Workcase", vntErrDatabase, "gone", true, 0}};
  EXPECT_EQ(mDatabase.SaveWorkcase(workCase), Variant(vntErrDatabase));
  EXPECT_EQ(workCase->RecId, 0);
  mobjConnection->Failures = {{"DELETE", vntErrDatabase, "gone", true, 0}};
  EXPECT_EQ(ErrorOf([&] { mDatabase.SaveTokenProperties(place); }), vntErrDatabase);
  EXPECT_EQ(ErrorOf([&] { mDatabase.DeleteWorkflow(3); }), vntErrDatabase);
  EXPECT_EQ(mobjConnection->Commits, 0);
}

TEST_F(SaveFailure, OfReadingAValueBackDoublesNothing) {
  const auto place = mobjNet->Places.First();
  const auto record = std::make_shared<PropertyRecord>();
  record->Id = 31;
  record->Name = "A";
  place->TokenProperties->Add(record, "A");
  const auto token = mobjNet->CreateToken(place, nullptr, nullptr);
  token->RecId = 8;
  token->SetProperty("A", "x");
  const auto alsoHeld = token->CustomProperties();  // by a host: the values are not another token's for that
  mobjConnection->Failures = {{"SELECT Id FROM PropertyValue", vntErrStatement, "not now", false, 0}};
  EXPECT_NE(ErrorOf([&] { mDatabase.SaveTokenPropertyValues(token); }), 0);
  EXPECT_TRUE(Logged("INSERT INTO PropertyValue"));
  mobjConnection->Failures.clear();
  mobjConnection->Rows = {{"SELECT Id FROM PropertyValue", {{{"Id", 50}}}}};
  for (const char* expected : {"SELECT Id", "UPDATE"}) {
    mobjConnection->Log.clear();
    mDatabase.SaveTokenPropertyValues(token);
    EXPECT_FALSE(Logged("INSERT"));
    EXPECT_TRUE(Logged("WHERE Id = 50"));
    EXPECT_EQ(mobjConnection->Log.find(expected), 4U) << mobjConnection->Log;
  }

  const auto twin = mobjNet->CreateToken(place, nullptr, nullptr);
  twin->RecId = 9;
  twin->CustomProperties(alsoHeld);
  mobjConnection->Rows.clear();
  mobjConnection->Log.clear();
  mDatabase.SaveTokenPropertyValues(twin);
  EXPECT_TRUE(Logged("INSERT INTO PropertyValue (PropertyId, TokenId, [Value]) VALUES(31, 9, 'x')")) << mobjConnection->Log;
}

TEST_F(SaveFailure, OfAnythingUndoesAWholeSave) {
  const auto inner = std::make_shared<Workflow>();
  AddPlace(*inner, "inner");
  mobjTransition->Object(inner);
  mobjTransition->SubflowId = 44;
  mobjConnection->Failures = {{"Name='P'", vntErrStatement, "first", false, 0}, {"Caption=''  Top=", vntErrStatement, "second", false, 0}};
  try {
    SaveWhole(mDatabase.Connection, mobjNet);
    ADD_FAILURE() << "must throw";
  } catch (const Error& error) {
    EXPECT_EQ(error.Description, "first");
  }
  EXPECT_EQ(inner->RecId, 0);
  EXPECT_EQ(mobjTransition->SubflowId, 44);
  EXPECT_TRUE(mobjNet->Dirty());
  EXPECT_EQ(mobjConnection->Rollbacks, 1);
}

TEST_F(SaveFailure, ReadingShowsNothingForAConnectionThatCannotBeUsed) {
  mobjConnection->Failures = {{"SELECT", vntErrNoConnection, "unusable", false, 0}};
  EXPECT_EQ(mDatabase.ReadWorkflow(1), nullptr);
  EXPECT_TRUE(mMessages.Texts.empty());
  ASSERT_TRUE(gobjWorkflow);
  EXPECT_EQ(gobjWorkflow->RecId, 0) << "an empty workflow is the current one";
  EXPECT_EQ(ErrorOf([&] { mDatabase.NextId("Token"); }), vntErrObjectNotSet);

  mobjConnection->WhyNotBegun = "server gone";
  EXPECT_EQ(mDatabase.ReadWorkflow(1), nullptr);
  mDatabase.Connection = nullptr;
  EXPECT_EQ(mDatabase.ReadWorkflow(1), nullptr);
  EXPECT_TRUE(mMessages.Texts.empty());

  mDatabase.Connection = mobjConnection;
  mobjConnection->WhyNotBegun.clear();
  mobjConnection->Failures = {{"SELECT", vntErrStatement, "refused", false, 0}};
  EXPECT_EQ(mDatabase.ReadWorkflow(1), nullptr);
  EXPECT_EQ(mMessages.Texts, std::vector<std::string>{"refused"});
}

}  // namespace
}  // namespace vantrel::test

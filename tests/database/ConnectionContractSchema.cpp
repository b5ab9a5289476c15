#include <cfloat>

#include <gmock/gmock.h>

#include "database/ConnectionContract.h"

namespace vantrel::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Assignments PlaceOf(std::int32_t plngWorkflowId) {
  Assignments place = {{"WorkflowId", plngWorkflowId}, {"Name", "P"}, {"Caption", ""}, {"Description", ""}, {"SelectionType", 0}};
  for (const char* number : {"CtlTop", "CtlLeft", "InputPosition", "OutputPosition", "CaptionOffsetTop", "CaptionOffsetLeft"}) {
    place.emplace_back(number, 1);
  }
  for (const char* picture : {"EnabledImageKey", "DisabledImageKey"}) place.emplace_back(picture, "");
  return place;
}

}  // namespace

TEST_P(ConnectionContract, IdsOfDeletedRowsDoNotComeAgain) {
  const std::int32_t last = AddArc(*mobjConnection, "");
  mobjConnection->Execute("DELETE * FROM Arc");
  EXPECT_GT(AddArc(*mobjConnection, ""), last);
}

TEST_P(ConnectionContract, PathsKeepTheirOrderAndGoWithTheirArc) {
  const std::string id = std::to_string(AddArc(*mobjConnection, ""));
  for (const char* x : {"3", "-1.5", "1e-05"}) {
    mobjConnection->Execute(" INSERT INTO Vector ( ArcId, X1, Y1, X2, Y2 ) VALUES (" + id + ", " + x + ", 0, 0, 3.4028235e+38)");
  }
  mobjConnection->Execute("INSERT INTO Vector ( ArcId, X1, Y1, X2, Y2 ) VALUES (0, 1, 1, 1, 1)");
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM Vector WHERE ArcId = " + id, "X1"), ElementsAre("3", "-1.5", "1e-05"));
  EXPECT_EQ(Opened(*mobjConnection, "SELECT * FROM Vector WHERE ArcId = " + id)->Fields("Y2").Value, Variant(FLT_MAX));
  mobjConnection->Execute("DELETE * FROM Arc WHERE Id = " + id);
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM Vector", "ArcId"), IsEmpty());
}

// A save may break keys in its middle: they are checked at its end.
TEST_P(ConnectionContract, KeysHoldWhenTheTransactionEnds) {
  const std::int32_t place = Add(*mobjConnection, "Place", PlaceOf(1)), arc = AddArc(*mobjConnection, "");
  const std::string ofArc = " WHERE Id = " + std::to_string(arc), ofPlace = " WHERE Id = " + std::to_string(place);
  mobjConnection->Execute("UPDATE Arc SET PlaceId = " + std::to_string(place) + ofArc);
  mobjConnection->Execute("DELETE * FROM Place" + ofPlace);
  EXPECT_THAT(Column(*mobjConnection, "SELECT PlaceId FROM Arc", "PlaceId"), ElementsAre("NULL"));
  mobjConnection->Execute("UPDATE Arc SET PlaceId = 0, TransitionId = 0" + ofArc);  // ends that were never stored
  EXPECT_THAT(Column(*mobjConnection, "SELECT TransitionId FROM Arc", "TransitionId"), ElementsAre("NULL"));

  const auto refused = [&](const std::string& pstrStatement) {
    mobjConnection->BeginTrans(Transaction::Write);
    mobjConnection->Execute(pstrStatement);
    return ErrorOf([&] { mobjConnection->CommitTrans(); }) != 0;
  };
  EXPECT_TRUE(refused("UPDATE Arc SET WorkflowId = 2" + ofArc));
  EXPECT_TRUE(refused("UPDATE Arc SET TransitionId = 2" + ofArc));
  EXPECT_TRUE(refused("INSERT INTO Vector (ArcId, X1, Y1, X2, Y2) VALUES (77, 1, 1, 1, 1)"));
  EXPECT_TRUE(refused("INSERT INTO PropertyOptions (PropertyId, Prompt, Value) VALUES (1, 'p', 'v')"));
  EXPECT_TRUE(refused("INSERT INTO PropertyValue (PropertyId, TokenId, [Value]) VALUES (1, 1, 'v')"));
  EXPECT_TRUE(refused("DELETE * FROM Workflow"));
  mobjConnection->BeginTrans(Transaction::Write);
  mobjConnection->Execute("UPDATE Arc SET WorkflowId = 2" + ofArc);
  AddWorkflow(*mobjConnection, 2);
  mobjConnection->CommitTrans();
}

TEST_P(ConnectionContract, TheIdOfADeletedWorkflowStandsEmbeddedNowhere) {
  AddWorkflow(*mobjConnection, 2);
  Assignments embedding = PlaceOf(1);
  std::erase_if(embedding, [](const auto& pColumn) { return pColumn.first == "SelectionType"; });
  for (const char* whole : {"OutputType", "TriggerType", "Duration", "DurationStdDev"}) embedding.emplace_back(whole, 1);
  embedding.emplace_back("SubflowId", 2);
  Add(*mobjConnection, "Transition", embedding);
  mobjConnection->Execute("INSERT INTO vantrel_workflow (WorkflowId, BackColor) VALUES (2, 255)");
  mobjConnection->Execute("DELETE * FROM Workflow WHERE Id = 2");
  AddWorkflow(*mobjConnection, 2);
  EXPECT_THAT(Column(*mobjConnection, "SELECT SubflowId FROM Transition", "SubflowId"), ElementsAre("0"));
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM vantrel_workflow", "BackColor"), IsEmpty());
}

TEST_P(ConnectionContract, WhatIsOneOfAKindIsRefusedTwice) {
  AddWorkflow(*mobjConnection, 2);
  EXPECT_EQ(ErrorOf([&] { mobjConnection->Execute("UPDATE Workflow SET GUID = '11111111-1111-4111-8111-111111111111'"); }),
            vntErrStatement);
  const std::string longName(3000, 'n');
  AddDefinition(*mobjConnection, longName + "1", 1);
  AddDefinition(*mobjConnection, longName + "2", 2);
  EXPECT_EQ(ErrorOf([&] { AddDefinition(*mobjConnection, longName + "1", 3); }), vntErrStatement);
}

TEST_P(ConnectionContract, TokenValuesFollowDefinitionsThatAreSavedAnew) {
  const std::string names =
      "SELECT TokenProperty.Name FROM PropertyValue, TokenProperty WHERE PropertyValue.PropertyId = TokenProperty.Id ORDER BY "
      "PropertyValue.Id";
  mobjConnection->Execute(
      "INSERT INTO Token (Id, PlaceId, WorkcaseId, CreateTransitionId, ConsumeTransitionId, CreateUserId, ConsumeUserId, DateCreated, "
      "DateConsumed, Tag) VALUES (1, 7, 0, 0, 0, 0, 0, #2026-01-01 00:00:00#, #1899-12-30 00:00:00#, '')");
  AddDefinition(*mobjConnection, "colour", 1);
  AddDefinition(*mobjConnection, "size", 2);
  for (const std::string& id : Column(*mobjConnection, "SELECT Id FROM TokenProperty ORDER BY Index", "Id")) {
    mobjConnection->Execute("INSERT INTO PropertyValue (PropertyId, TokenId, [Value]) VALUES(" + id + ", 1, 'x')");
    mobjConnection->Execute("INSERT INTO PropertyOptions ( PropertyId, Prompt, Value) VALUES( " + id + ", 'p', 'o')");
  }
  EXPECT_EQ(Column(*mobjConnection, "SELECT * FROM PropertyOption", "Prompt").size(), 2U);

  mobjConnection->Execute("DELETE * FROM TokenProperty WHERE TokenProperty.PlaceId = 7");
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM PropertyOption", "Prompt"), IsEmpty());
  AddDefinition(*mobjConnection, "size", 1);
  AddDefinition(*mobjConnection, "weight", 2);
  EXPECT_THAT(Column(*mobjConnection, names, "Name"), ElementsAre("size"));
  mobjConnection->Execute("DELETE * FROM TokenProperty WHERE TokenProperty.PlaceId = 7");
  AddDefinition(*mobjConnection, "size", 1);
  AddDefinition(*mobjConnection, "colour", 2);
  EXPECT_THAT(Column(*mobjConnection, names, "Name"), ElementsAre("colour", "size"));
}

}  // namespace vantrel::test

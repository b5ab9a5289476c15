#include <cfloat>
#include <limits>

#include <gmock/gmock.h>

#include "database/ConnectionContract.h"
#include "util/Error.h"

namespace vantrel::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kOddTexts[] = {
    "",    "it's", "''",      "'); DROP TABLE Place; --", "a\nb\r\n\tc", "\"[Name]\" #1# \\' \\", "\xF0\x9F\x98\x80 \xC3\xA4\xE2\x82\xAC",
    " x ", "NULL", "$1 ?1 :a"};

Assignments WholeTransition() {
  return {{"Name", "T"},
          {"WorkflowId", std::int32_t{1}},
          {"SubflowId", std::numeric_limits<std::int32_t>::min()},
          {"OutputType", std::numeric_limits<std::int32_t>::max()},
          {"TriggerType", std::int32_t{0}},
          {"CtlTop", FLT_MAX},
          {"CtlLeft", FLT_MIN},
          {"InputPosition", std::numeric_limits<std::int16_t>::min()},
          {"OutputPosition", std::numeric_limits<std::int16_t>::max()},
          {"CaptionOffsetTop", -0.1F},
          {"CaptionOffsetLeft", 120.0F},
          {"Duration", DBL_MAX},
          {"DurationStdDev", -1.0 / 3},
          {"EnabledImageKey", "e"},
          {"DisabledImageKey", "d"},
          {"Caption", Variant::Null}};
}

const char* const kToken =
    "INSERT INTO Token(Id, PlaceId, WorkcaseId, DateCreated, CreateTransitionId, DateConsumed, ConsumeTransitionId, CreateUserId, "
    "ConsumeUserId, Tag )  VALUES(";

}  // namespace

TEST_P(ConnectionContract, RowSetsKeepValuesAndKinds) {
  const Assignments values = WholeTransition();
  const std::int32_t id = Add(*mobjConnection, "Transition", values);

  const auto row = Opened(*mobjConnection, "SELECT * FROM Transition WHERE Id = " + std::to_string(id));
  ASSERT_EQ(row->RecordCount(), 1);
  for (const auto& [name, value] : values) EXPECT_EQ(row->Fields(name).Value, value) << name;
  EXPECT_TRUE(row->Fields("captionheight").Value.IsNull());
}

TEST_P(ConnectionContract, TextSurvivesInRowSetsStatementsAndConditions) {
  for (const std::string text : kOddTexts) {
    std::string quoted;
    for (const char c : text) quoted += c == '\'' ? std::string("''") : std::string(1, c);
    mobjConnection->Execute("DELETE * FROM Arc");
    AddArc(*mobjConnection, text.c_str());
    mobjConnection->Execute("UPDATE Arc SET Weight = '" + quoted + "' WHERE Guard = '" + quoted + "'");
    mobjConnection->Execute("UPDATE Arc SET Description = 'found' WHERE Weight IN ('other', '" + quoted + "')");

    EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM Arc", "Guard"), ElementsAre(text));
    EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM Arc", "Weight"), ElementsAre(text));
    EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM Arc", "Description"), ElementsAre("found")) << text;
  }
}

TEST_P(ConnectionContract, NulCharactersAreRefusedBeforeTheyCutATextShort) {
  const std::string text("a\0b", 3);
  EXPECT_EQ(ErrorOf([&] { mobjConnection->Execute("INSERT INTO Arc (Guard) VALUES ('" + text + "')"); }), vntErrStatement);
  EXPECT_EQ(ErrorOf([&] { Add(*mobjConnection, "Arc", {{"Guard", text}}); }), vntErrStatement);
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM Arc", "Guard"), IsEmpty());
}

TEST_P(ConnectionContract, DatesAndBooleansOfStatementsComeBackAsSuch) {
  mobjConnection->Execute(std::string(kToken) + "1, 2, 3, #0001-01-01 00:00:00#, 0, #9999-12-31 23:59:59#, -4, 5, 6,'t')");
  const auto token = Opened(*mobjConnection, "SELECT * FROM Token WHERE DateCreated < #1899-12-30 00:00:00#");
  ASSERT_EQ(token->RecordCount(), 1);
  EXPECT_TRUE(token->Fields("DateCreated").Value.IsDate());
  EXPECT_EQ(token->Fields("DateCreated").Value.ToText(), "0001-01-01 00:00:00");
  EXPECT_EQ(token->Fields("DateConsumed").Value.ToDate().ToText(), "9999-12-31 23:59:59");
  EXPECT_EQ(token->Fields("ConsumeTransitionId").Value, Variant(std::int32_t{-4}));

  mobjConnection->Execute(
      "INSERT INTO Workflow(Id, StartPlaceName, EndPlaceName, CaseTracking, KeepHistory, ShowGuards, ShowWeights, RunStyle, LockControls) "
      "VALUES(2, '','', True, False, True, False, -1, True)");
  const auto workflow = Opened(*mobjConnection, "SELECT * FROM Workflow WHERE CaseTracking = True AND KeepHistory IN (False)");
  ASSERT_EQ(workflow->RecordCount(), 1);
  EXPECT_EQ(workflow->Fields("LockControls").Value, Variant(true));
  EXPECT_EQ(workflow->Fields("ShowWeights").Value, Variant(false));
  EXPECT_THAT(workflow->Fields("GUID").Value.ToText(),
              testing::MatchesRegex("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}"));
}

TEST_P(ConnectionContract, ReservedNamesAreColumnsLikeAnyOther) {
  Assignments note = {{"WorkflowId", std::int32_t{1}}, {"Tag", ""}, {"Font", "Sans"}};
  for (const char* name : {"Top", "Left", "Height", "Width", "BackColor", "ForeColor", "Size"}) note.emplace_back(name, std::int32_t{-3});
  for (const char* name : {"Alignment", "Appearance", "BorderStyle"}) note.emplace_back(name, std::int16_t{2});
  for (const char* name : {"Underline", "Strikethrough", "Bold", "Italics", "Protected"}) note.emplace_back(name, true);
  Add(*mobjConnection, "Notation", note);
  const auto row = Opened(*mobjConnection, "SELECT Left, [Top], BackStyle FROM Notation WHERE Notation.Left = -3 ORDER BY Left DESC");
  EXPECT_EQ(row->Fields("Left").Value, Variant(std::int32_t{-3}));
  EXPECT_EQ(row->Fields("BackStyle").Value, Variant(std::int16_t{0}));

  AddDefinition(*mobjConnection, "later", 2);
  AddDefinition(*mobjConnection, "earlier", 1);
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM TokenProperty WHERE PlaceId = 7 ORDER BY Index", "Name"),
              ElementsAre("earlier", "later"));
}

TEST_P(ConnectionContract, AggregatesJoinsAndSubSelects) {
  const std::string maximum = "SELECT MAX(Id) AS MaxId FROM Workcase";
  EXPECT_TRUE(Opened(*mobjConnection, maximum)->Fields("MaxId").Value.IsNull());
  for (const char* row : {"3, 30", "7, 70", "8, 30"})
    mobjConnection->Execute(std::string("INSERT INTO Workcase(Id, OrderItemId ) VALUES(") + row + ")");
  EXPECT_EQ(Opened(*mobjConnection, maximum)->Fields("MaxId").Value, Variant(std::int32_t{8}));

  EXPECT_THAT(
      Column(*mobjConnection, "SELECT OrderItemId, COUNT(*) AS Cases FROM Workcase GROUP BY OrderItemId ORDER BY OrderItemId", "Cases"),
      ElementsAre("2", "1"));
  mobjConnection->Execute(std::string(kToken) + "1, 2, 7, #2026-01-02 03:04:05#, 0, #1899-12-30 00:00:00#, 0, 0, 0,'')");
  EXPECT_THAT(
      Column(*mobjConnection, "SELECT Workcase.OrderItemId FROM Token, Workcase WHERE Token.WorkcaseId = Workcase.Id", "OrderItemId"),
      ElementsAre("70"));
  EXPECT_THAT(
      Column(*mobjConnection, "SELECT Id FROM Workcase WHERE Id NOT IN (SELECT WorkcaseId FROM Token WHERE PlaceId = 2) ORDER BY Id", "Id"),
      ElementsAre("3", "8"));
}

TEST_P(ConnectionContract, ListsMayBeAsLongAsACollection) {
  const std::int32_t keep = AddArc(*mobjConnection, "keep");
  AddArc(*mobjConnection, "drop");
  std::string ids = std::to_string(keep);
  for (int id = 1000; id < 101'000; ++id) ids += ", " + std::to_string(id);
  mobjConnection->Execute("DELETE * FROM Arc WHERE WorkflowId = 1 AND Arc.Id NOT IN (" + ids + ")");
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM Arc", "Guard"), ElementsAre("keep"));
}

}  // namespace vantrel::test

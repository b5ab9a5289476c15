#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "persistence/RecordingConnection.h"
#include "persistence/VNTRDB.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

class Statements : public testing::Test {
 protected:
  Statements() { mDatabase.Connection = mobjConnection; }

  std::string LogOf(const std::function<void()>& pWork) {
    mobjConnection->Log.clear();
    pWork();
    return mobjConnection->Log;
  }

  DesignerStateScope mState;
  MessageRecorder mMessages;
  std::shared_ptr<RecordingConnection> mobjConnection = std::make_shared<RecordingConnection>();
  VNTRDB mDatabase;
};

// A place, a transition, an arc with a bend, an arc without, an arc that has lost its place, and a note.
std::shared_ptr<Workflow> SmallChart() {
  auto net = std::make_shared<Workflow>();
  const auto place = AddPlace(*net, "Tom's");
  place->Top(1234.5F);
  place->Left(120);
  const auto transition = AddTransition(*net, "T");
  transition->Action = "a';--";
  transition->Duration = 0.1;
  const auto bent = Connect(place, transition);
  bent->Guard("g");
  bent->InsertVector(bent->Vectors()->First());
  Connect(transition, place);
  net->Arcs.Last()->StdPath = true;
  const auto lost = Connect(place, transition);
  lost->Place = nullptr;
  lost->RecId = 77;
  const auto note = net->NewNotation();
  note->Caption = "N";
  note->BackStyle = 1;
  note->Bold = true;
  net->StartPlace = place;
  net->KeepHistory = true;
  return net;
}

constexpr const char* kTransition =
    "  Name='T'  WorkflowId=1  Caption=''  Description=''  SubflowId=0  ObjectClassName=''  ObjectName=''  OutputType=1  TriggerType=1"
    "  Action='a';--'  CtlTop=200  CtlLeft=200  InputPosition=4  OutputPosition=2  CaptionOffsetTop=-200  CaptionOffsetLeft=0"
    "  Duration=0.1  DurationStdDev=0  EnabledImageKey='TransitionEnabled'  DisabledImageKey='Transition'\n";
constexpr const char* kPlace =
    "  Name='Tom's'  WorkflowId=1  Caption=''  Description=''  SelectionType=0  CtlTop=1234.5  CtlLeft=120  InputPosition=4"
    "  OutputPosition=2  CaptionOffsetTop=-200  CaptionOffsetLeft=0  EnabledImageKey='PlaceGreen'  DisabledImageKey='Place'\n";
constexpr const char* kArcEnd =
    "  Weight='1'  CaptionOffsetX=0  CaptionOffsetY=-200  CaptionHeight=0  CaptionWidth=0  WeightOffsetX=0  WeightOffsetY=200"
    "  WeightHeight=0  WeightWidth=0\n";
constexpr const char* kNote =
    "  WorkflowId=1  Caption='N'  Top=0  Left=0  Height=0  Width=0  BackColor=0  ForeColor=0  Font='Arial'  Size=0  Underline=False"
    "  Strikethrough=False  Bold=True  Italics=False  Alignment=0  Appearance=0  BorderStyle=0  Protected=False  Tag=''\n";

std::string ArcRow(const char* pstrFlags) {
  return std::string("  WorkflowId=1  Description=''  TransitionId=101  PlaceId=102  WorkflowId=1  ") + pstrFlags + kArcEnd;
}

TEST_F(Statements, OfASaveOfANewChartAndOfTheNextOne) {
  const auto net = SmallChart();
  mobjConnection->Rows = {{"SELECT GUID", {{{"GUID", "{1}"}}}}};
  EXPECT_EQ(LogOf([&] { EXPECT_EQ(mDatabase.SaveWorkFlow(net), 0); }),
            std::string("[2] SELECT MAX(Id) AS MaxId FROM Workflow\n"
                        "[2] INSERT INTO Workflow(Id, StartPlaceName, EndPlaceName, CaseTracking, KeepHistory, ShowGuards, ShowWeights, "
                        "RunStyle, LockControls) VALUES(1, 'Tom''s','',False, True, False, False, 0, False)\n"
                        "[2] SELECT GUID FROM Workflow WHERE Id = 1\n"
                        "[2] DELETE * FROM Transition WHERE WorkflowId = 1 AND Transition.Id NOT IN (0)\n"
                        "[3] SELECT * FROM Transition WHERE Id = 0 -> new\n") +
                kTransition +
                "[2] DELETE * FROM Place WHERE WorkflowId = 1 AND Place.Id NOT IN (0)\n"
                "[3] SELECT * FROM Place WHERE Id = 0 -> new\n" +
                kPlace +
                "[2] DELETE * FROM Arc WHERE WorkflowId = 1 AND Arc.Id NOT IN (0, 0, 77)\n"
                "[3] Arc -> new\n" +
                ArcRow("ArcDirection=1  StdPath=False  Guard='g'") + "[3] Arc -> new\n" + ArcRow("ArcDirection=2  StdPath=True  Guard=''") +
                "[2] DELETE * FROM Vector WHERE ArcId = 103\n"
                "[2] DELETE * FROM Vector WHERE ArcId = 104\n"
                "[2] DELETE * FROM Vector WHERE ArcId = 77\n"
                "[2]  INSERT INTO Vector ( ArcId, X1, Y1, X2, Y2 ) VALUES (103, 0, 0, 0, 0)\n"
                "[2]  INSERT INTO Vector ( ArcId, X1, Y1, X2, Y2 ) VALUES (103, 0, 0, 0, 0)\n"
                "[2] DELETE * FROM Notation WHERE WorkflowId = 1 AND Notation.Id NOT IN (0)\n"
                "[3] SELECT * FROM Notation WHERE Id = 0 -> new\n" +
                kNote);
  EXPECT_EQ(net->GUID, Variant("{1}"));
  EXPECT_FALSE(net->Places.First()->Dirty());

  net->Dirty(true);
  net->EndPlace(net->StartPlace);
  net->StartPlace = nullptr;
  net->Notations.Clear();
  net->Arcs.Clear();
  EXPECT_EQ(LogOf([&] { EXPECT_EQ(mDatabase.SaveWorkFlow(net), 0); }),
            std::string("[2] UPDATE Workflow SET  StartPlaceName ='', EndPlaceName = 'Tom''s',  CaseTracking = False,  KeepHistory = True, "
                        " ShowGuards = False,  ShowWeights = False,  RunStyle = 0,  LockControls = False WHERE Id = 1\n"
                        "[2] DELETE * FROM Transition WHERE WorkflowId = 1 AND Transition.Id NOT IN (101)\n"
                        "[3] SELECT * FROM Transition WHERE Id = 101\n") +
                kTransition +
                "[2] DELETE * FROM Place WHERE WorkflowId = 1 AND Place.Id NOT IN (102)\n"
                "[3] SELECT * FROM Place WHERE Id = 102\n" +
                kPlace +
                "[2] DELETE * FROM Arc WHERE WorkflowId = 1\n"
                "[2] DELETE * FROM Notation WHERE WorkflowId = 1\n");
  EXPECT_EQ(LogOf([&] { mDatabase.SaveWorkFlow(net); }).find("UPDATE"), std::string::npos) << "a clean workflow's row is left alone";
  EXPECT_EQ(mobjConnection->Commits, mobjConnection->Transactions);
  EXPECT_TRUE(mMessages.Texts.empty());
}

TEST_F(Statements, OfASaveWithAShownCaption) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  GiveElements(*place);
  place->CaptionLabel->Resize(300, 150);
  const auto log = LogOf([&] { mDatabase.SaveWorkFlow(host.Net); });
  EXPECT_NE(log.find("OutputPosition=2  CaptionHeight=150  CaptionWidth=300  CaptionOffsetTop="), std::string::npos) << log;
}

TEST_F(Statements, OfAReadAndADeletion) {
  mobjConnection->Rows = {{"SELECT * FROM Workflow",
                           {{{"GUID", "{2}"},
                             {"CaseTracking", true},
                             {"KeepHistory", false},
                             {"ShowGuards", false},
                             {"ShowWeights", false},
                             {"RunStyle", 1},
                             {"LockControls", true},
                             {"StartPlaceName", Variant::Null},
                             {"EndPlaceName", "E"}}}},
                          {"SELECT Id AS ArcId", {{{"ArcId", 4}}, {{"ArcId", 5}}}}};
  EXPECT_EQ(LogOf([&] { EXPECT_NE(mDatabase.ReadWorkflow(9), nullptr); }),
            "[2] SELECT * FROM Workflow WHERE Id = 9\n"
            "[2]  SELECT *    FROM Notation   WHERE WorkflowId = 9\n"
            "[2]  SELECT *    FROM Transition   WHERE WorkflowId = 9\n"
            "[2]  SELECT *    FROM Place   WHERE WorkflowId = 9\n"
            "[2]  SELECT *    FROM Arc   WHERE WorkflowId = 9\n");
  EXPECT_EQ(LogOf([&] { mDatabase.DeleteWorkflow("9"); }),
            "[2] SELECT Id AS ArcId FROM Arc WHERE WorkflowId = 9\n"
            "[2] DELETE * FROM Vector WHERE ArcId IN (4, 5)\n"
            "[2] DELETE * FROM Arc WHERE WorkflowId = 9\n"
            "[2] DELETE * FROM Place WHERE WorkflowId = 9\n"
            "[2] DELETE * FROM Transition WHERE WorkflowId = 9\n"
            "[2] DELETE * FROM Notation WHERE WorkflowId = 9\n"
            "[2] DELETE * FROM Workflow WHERE Id = 9\n");
}

TEST_F(Statements, OfDefinitions) {
  const auto net = std::make_shared<Workflow>();
  const auto place = AddPlace(*net);
  place->RecId(6);
  for (const char* name : {"A", "B"}) {
    const auto record = std::make_shared<PropertyRecord>();
    record->Name = name;
    record->Value = 5;
    record->Type = 3;
    record->AddOption("yes", true);
    place->TokenProperties->Add(record, name);
  }
  mobjConnection->Rows = {{"SELECT Id FROM TokenProperty WHERE PlaceId = 6 AND Name = 'B'", {{{"Id", 31}}}}};
  EXPECT_EQ(LogOf([&] { mDatabase.SaveTokenProperties(place); }),
            "[2] DELETE * FROM TokenProperty WHERE TokenProperty.PlaceId = 6\n"
            "[2]  INSERT INTO TokenProperty ( PlaceId, Name, [Index], Caption, Description, Type, [Value], Attributes ) "
            "VALUES (6,'A', 1, '', '', 3, '5', 0)\n"
            "[2] SELECT Id FROM TokenProperty WHERE PlaceId = 6 AND Name = 'A'\n"
            "[2]  INSERT INTO TokenProperty ( PlaceId, Name, [Index], Caption, Description, Type, [Value], Attributes ) "
            "VALUES (6,'B', 2, '', '', 3, '5', 0)\n"
            "[2] SELECT Id FROM TokenProperty WHERE PlaceId = 6 AND Name = 'B'\n"
            "[2] INSERT INTO PropertyOptions ( PropertyId, Prompt, Value) VALUES( 31, 'yes', 'True')\n");
}

TEST_F(Statements, OfCasesAndTokens) {
  const auto net = std::make_shared<Workflow>();
  const auto place = AddPlace(*net);
  const auto transition = AddTransition(*net);
  place->RecId(6);
  transition->RecId = 8;
  const auto record = std::make_shared<PropertyRecord>();
  record->Id = 31;
  record->Name = "A";
  place->TokenProperties->Add(record, "A");
  const auto workCase = NewCase("C");
  workCase->OrderItemId = -4;
  mobjConnection->Rows = {{"SELECT MAX(Id) AS MaxId FROM Workcase", {{{"MaxId", 7}}}}, {"SELECT Id FROM PropertyValue", {{{"Id", 50}}}}};
  EXPECT_EQ(LogOf([&] { EXPECT_EQ(mDatabase.SaveWorkcase(workCase), Variant(0)); }),
            "[2] SELECT MAX(Id) AS MaxId FROM Workcase\n[2] INSERT INTO Workcase(Id, OrderItemId ) VALUES(8, -4)\n");
  EXPECT_EQ(LogOf([&] { EXPECT_TRUE(mDatabase.SaveWorkcase(workCase).IsEmpty()); }), "");
  workCase->Dirty = true;
  EXPECT_EQ(LogOf([&] { mDatabase.SaveWorkcase(workCase); }), "[2] UPDATE Workcase SET  OrderItemId = -4 WHERE Id = 8\n");

  const auto token = net->CreateToken(place, nullptr, workCase);
  net->CreateToken(place, nullptr, nullptr);  // of no case: not written
  token->DateCreated = Date::FromDays(1.5);
  token->Tag = "it's";
  token->SetProperty("A", "x");
  EXPECT_EQ(LogOf([&] { EXPECT_EQ(mDatabase.SaveToken(token), Variant(0)); }),
            "[2] SELECT MAX(Id) AS MaxId FROM Token\n"
            "[2] INSERT INTO Token(Id, PlaceId, WorkcaseId, DateCreated, CreateTransitionId, DateConsumed, ConsumeTransitionId, "
            "CreateUserId, ConsumeUserId, Tag )  VALUES(1, 6, 8, #1899-12-31 12:00:00#, 0, #1899-12-30 00:00:00#, 0, 0, 0,'it''s')\n"
            "[2] INSERT INTO PropertyValue (PropertyId, TokenId, [Value]) VALUES(31, 1, 'x')\n"
            "[2] SELECT Id FROM PropertyValue WHERE PropertyId = 31 AND TokenId = 1\n");
  EXPECT_FALSE(token->Dirty);
  token->SetProperty("A", "");  // the default: without an update the old value would come back
  token->CreateTransition = transition;
  EXPECT_EQ(LogOf([&] { mDatabase.SaveToken(token); }),
            "[2]  UPDATE Token  SET  PlaceId = 6,  WorkcaseId = 8,  DateCreated = #1899-12-31 12:00:00#, CreateTransitionId = 8, "
            "DateConsumed = #1899-12-30 00:00:00#,  ConsumeTransitionId = 0,  CreateUserId  = 0,  ConsumeUserId  = 0,  Tag = 'it''s' "
            "WHERE Id = 1\n"
            "[2] UPDATE PropertyValue SET  PropertyId = 31,  TokenId = 1,  [Value] = '' WHERE Id = 50\n");
  token->CustomProperties()->First()->Name = "unknown";
  EXPECT_THROW(mDatabase.SaveTokenPropertyValues(token), Error);
}

}  // namespace
}  // namespace vantrel::test

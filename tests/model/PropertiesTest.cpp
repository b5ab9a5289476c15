#include <functional>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/MessageRecorder.h"

namespace vantrel {

namespace {

using namespace test;

/// The names and values of an object's records, to be compared with what they are later.
std::string Values(ModelObject& pobjObject) {
  std::string text;
  const auto records = pobjObject.GetProperties();
  for (const auto& record : *records) text += record->Name + "=" + (record->Value.IsObject() ? "object" : record->Value.ToText()) + " ";
  return text;
}

/// The names and types of an object's records, with the options of each in brackets.
std::string Outline(ModelObject& pobjObject) {
  std::string text;
  const auto records = pobjObject.GetProperties();
  for (const auto& record : *records) {
    text += record->Name + ":" + std::to_string(record->Type) + (record->Options.IsEmpty() ? "" : "[");
    for (const auto& option : record->Options) text += option->Prompt + "=" + option->Value.ToText() + ",";
    text += record->Options.IsEmpty() ? " " : "] ";
  }
  return text;
}

std::shared_ptr<PropertyCollection> Records(const std::vector<std::pair<std::string, Variant>>& pcolValues) {
  auto records = std::make_shared<PropertyCollection>();
  for (const auto& [name, value] : pcolValues) {
    auto record = std::make_shared<PropertyRecord>();
    record->Name = name;
    record->Value = value;
    records->Add(record, name);
  }
  return records;
}

/// A net with one object of every kind.
class Properties : public testing::Test {
 protected:
  Properties() {
    mNote->Workflow = mNet;
    mNet->Notations.Add(mNote, "Notation1");
    Clean();
  }

  void Clean() {
    mPlace->Dirty(false);
    mTransition->Dirty = mArc->Dirty = mNote->Dirty = false;
    mNet->Dirty(false);
    mMessages.Texts.clear();
  }
  std::string Dirty() const {
    return std::string(mPlace->Dirty() ? "place " : "") + (mTransition->Dirty ? "transition " : "") + (mArc->Dirty ? "arc " : "") +
           (mNote->Dirty ? "note " : "") + (mNet->Dirty() ? "net" : "");
  }

  MessageRecorder mMessages;
  TestHost mHost;
  std::shared_ptr<Workflow> mNet = mHost.Net;
  std::shared_ptr<Place> mPlace = AddPlace(*mNet, "P1");
  std::shared_ptr<Transition> mTransition = AddTransition(*mNet, "T1");
  std::shared_ptr<Arc> mArc = Connect(mPlace, mTransition);
  std::shared_ptr<Vector> mSegment = mNet->Vectors.First();
  std::shared_ptr<Notation> mNote = std::make_shared<Notation>();
  std::map<std::string, ModelObject*> mObjects = {
      {"place", mPlace.get()}, {"transition", mTransition.get()}, {"arc", mArc.get()}, {"note", mNote.get()}, {"", mNet.get()}};
};

TEST_F(Properties, RecordsAndOptionsComeInTheOrderOfTheInterface) {
  const std::string sides = "InputPosition:1[Left=4,Top=1,Right=2,Bottom=3,] OutputPosition:1[Left=4,Top=1,Right=2,Bottom=3,] Tag:0 ";
  const std::string yesNo = ":7[True=True,False=False,] ";
  EXPECT_EQ(Outline(*mPlace), "Name:0 Caption:0 Description:3 SelectionType:1[FIFO=0,LIFO=1,] Object:0 " + sides + "TokenProperties:13 ");
  EXPECT_EQ(Outline(*mTransition),
            "Name:0 Caption:0 Description:3 OutputType:1[Broadcast=1,Select=2,Distribute=3,Programmed=4,] "
            "TriggerType:1[User=1,Automatic=2,Message=3,Timed=4,] ObjectClassName:0 ObjectName:0 " +
                sides);
  EXPECT_EQ(Outline(*mNet), "StartPlace:0[P1=0,] EndPlace:0 CaseTracking" + yesNo + "KeepHistory" + yesNo);
  EXPECT_EQ(Outline(*mNote),
            "Caption:3 Alignment:5[Left=0,Right=1,Center=2,] Appearance:5[Flat=0,3D=1,] BackStyle:5[Transparent=0,Opaque=1,] "
            "BorderStyle:5[None=0,Fixed Single=1,] BackColor:17 ForeColor:17 Font:0[Arial=Arial,] Size:5 Bold" +
                yesNo + "Italics" + yesNo + "Underline" + yesNo + "Strikethrough" + yesNo + "Tag:0 ");
  EXPECT_EQ(Outline(*mArc), "Name:0 Description:3 Weight:0 Guard:0 Tag:0 ");
  EXPECT_EQ(Values(*mSegment), "Name=P1->T1 Description= Weight=1 Guard= Tag= ");
}

TEST_F(Properties, EditedRecordsComeBackFromTheObject) {
  const std::map<std::string, std::string> keepTheirValue = {
      {"place", "Object TokenProperties"}, {"transition", "ObjectClassName ObjectName"}, {"arc", "Name"}, {"note", ""}, {"", "EndPlace"}};
  for (const auto& [kind, object] : mObjects) {
    const auto edited = object->GetProperties();
    for (const auto& record : *edited) {
      if (keepTheirValue.at(kind).find(record->Name) != std::string::npos) continue;
      const auto& options = record->Options;
      record->Value = record->Value.IsBoolean() ? Variant(true)
                      : options.IsEmpty()       ? Variant(std::to_string(100 + edited->Count()))
                                                : options.Last()->Value;
      if (record->Name == "StartPlace") record->Value = "P1";
    }
    object->SetProperties(edited);
    const auto shown = object->GetProperties();
    for (const auto& record : *edited) {
      if (record->Value.IsObject()) continue;
      EXPECT_EQ(shown->Item(record->Name)->Value.ToText(), record->Value.ToText()) << kind << " " << record->Name;
    }
  }
  EXPECT_EQ(mMessages.Texts,
            (std::vector<std::string>{"Object doesn't have a property ObjectClassName.", "Object doesn't have a property ObjectName."}));
}

TEST_F(Properties, ValueOfAChoiceIsOneOfItsOptionsInKindToo) {
  for (const auto& [kind, object] : mObjects) {
    const auto records = object->GetProperties();
    for (const auto& record : *records) {
      if (record->Type == vntPropertyText || record->Options.IsEmpty()) continue;
      bool offered = false;
      for (const auto& option : record->Options) offered = offered || option->Value == record->Value;
      EXPECT_TRUE(offered) << kind << " " << record->Name;
    }
  }
}

TEST_F(Properties, EveryCallBuildsRecordsOfItsOwn) {
  for (const auto& [kind, object] : mObjects) {
    const auto first = object->GetProperties();
    const auto before = Values(*object);
    for (const auto& record : *first) record->Value = "changed by a grid that gives up";
    EXPECT_EQ(Values(*object), before) << kind;
  }
}

TEST_F(Properties, UnknownNameMarksDirtyAndOnlyTheTransitionSpeaks) {
  for (const auto& [kind, object] : mObjects) {
    Clean();
    const auto before = Values(*object);
    object->SetProperty("name", "x");
    EXPECT_EQ(Values(*object), before) << kind;
    EXPECT_EQ(Dirty(), kind.empty() ? "net" : kind + " net");
    const std::vector<std::string> told = {"Object doesn't have a property name."};
    EXPECT_EQ(mMessages.Texts, kind == "transition" ? told : std::vector<std::string>()) << kind;
  }
}

TEST_F(Properties, ValueThatDoesNotConvertIsReportedAndMarksNothing) {
  struct Bad {
    const char *Kind, *Name;
    Variant Value;
    const char* Message;
  };
  const std::vector<Bad> cases = {{"place", "SelectionType", "first", "Type mismatch"},
                                  {"place", "InputPosition", 40000, "Overflow"},
                                  {"place", "TokenProperties", "none", "Type mismatch"},
                                  {"transition", "Roles", 5, "Type mismatch"},
                                  {"transition", "TriggerType", 1e10, "Overflow"},
                                  {"arc", "Weight", Variant::Null, "Type mismatch"},
                                  {"note", "Bold", "perhaps", "Type mismatch"},
                                  {"note", "Alignment", 70000, "Overflow"},
                                  {"", "CaseTracking", "", "Type mismatch"}};
  for (const auto& [kind, name, value, message] : cases) {
    Clean();
    const auto before = Values(*mObjects[kind]);
    mObjects[kind]->SetProperty(name, value);
    EXPECT_EQ(mMessages.Texts, std::vector<std::string>{message}) << kind << " " << name;
    EXPECT_EQ(Dirty(), "") << name;
    EXPECT_EQ(Values(*mObjects[kind]), before);
  }
}

TEST_F(Properties, GridStoresNamesAndSidesWithoutTheSettersChecks) {
  AddPlace(*mNet, "P2");
  AddTransition(*mNet, "T2");
  GiveElements(*mPlace);
  mPlace->Caption("shown");
  Clean();
  mPlace->SetProperties(Records({{"Name", "P2"}, {"Caption", "stored"}, {"InputPosition", 1}}));
  mTransition->SetProperties(Records({{"Name", "T2"}, {"OutputPosition", 3}, {"OutputType", 2}}));
  EXPECT_EQ(mPlace->Name() + mTransition->Name(), "P2T2");
  EXPECT_EQ(mPlace->CaptionLabel->Caption(), "shown");
  EXPECT_EQ(gintInputPosition, vntLeft);
  EXPECT_EQ(gintOutputPosition, vntRight);
  EXPECT_TRUE(mMessages.Texts.empty());
  EXPECT_EQ(Dirty(), "");
}

TEST_F(Properties, ArcRefusesItsNameAndIsCleanAfterTheGrid) {
  mArc->SetProperty("Name", "x");
  EXPECT_EQ(Dirty(), "");
  mSegment->SetProperties(Records({{"Weight", 3}, {"Guard", "x > 3"}}));
  EXPECT_EQ(mArc->Weight() + mArc->Guard(), "3x > 3");
  EXPECT_FALSE(mArc->Dirty);
}

TEST_F(Properties, WorkflowOffersEachPlaceNameOnceWhereNoArcStandsAgainstIt) {
  AddPlace(*mNet, "P2");
  AddPlace(*mNet, "P2");
  Connect(mTransition, AddPlace(*mNet, "P3"));
  EXPECT_TRUE(Outline(*mNet).starts_with("StartPlace:0[P1=0,P2=0,] EndPlace:0[P2=0,P3=0,] "));
  mNet->SetProperty("EndPlace", "P3");
  EXPECT_TRUE(mNet->EndPlace() == mNet->Places.Last());
  mNet->SetProperty("EndPlace", "P4");
  EXPECT_FALSE(mNet->EndPlace());
}

TEST_F(Properties, TokensHaveRecordsOfTheirOwnAndSetTheFirstOfAName) {
  const auto token = mNet->CreateToken(mPlace);
  token->CustomProperties(nullptr);
  token->SetProperty("Colour", "red");
  EXPECT_EQ(mMessages.Texts, std::vector<std::string>{"Object variable not set"});
  EXPECT_FALSE(token->Dirty);

  const auto records = Records({{"Colour", "red"}, {"Size", 1}});
  records->Add(records->First()->Copy());
  token->SetProperties(records);
  EXPECT_EQ(token->GetProperties(), records);
  token->SetProperty("Colour", "blue");
  EXPECT_EQ(records->Item(1)->Value.ToText() + records->Item(3)->Value.ToText(), "bluered");
  EXPECT_TRUE(token->Dirty);
}

TEST(PropertyRecord, CopyHasOptionsOfItsOwn) {
  PropertyRecord record;
  record.Id = 7;
  record.Attributes = 3;
  record.Caption = "Colour of the part";
  record.AddOption("Red", 1);
  const auto copy = record.Copy();
  record.Options.First()->Value = 9;
  record.AddOption("Blue", 2);
  EXPECT_EQ(copy->Id + copy->Attributes, 10);
  EXPECT_EQ(copy->Caption, record.Caption);
  EXPECT_EQ(copy->Options.Count(), 1);
  EXPECT_EQ(copy->Options.Item("Red")->Value.ToInt32(), 1);
}

}  // namespace

}  // namespace vantrel

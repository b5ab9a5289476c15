#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "model/VNTRGlobal.h"
#include "util/MessageRecorder.h"

namespace vantrel {

namespace {

using namespace test;

TEST(NodeName, TakenOneIsRefusedWithAMessageTheOwnIncluded) {
  TestHost host;
  MessageRecorder messages;
  AddPlace(*host.Net, "Inbox");
  AddTransition(*host.Net, "Check");
  const auto place = AddPlace(*host.Net, "Outbox");
  const auto transition = AddTransition(*host.Net, "Send");
  for (const char* name : {"Inbox", "Outbox", "inbox"}) place->Name(name);
  for (const char* name : {"Check", "Send"}) transition->Name(name);
  EXPECT_EQ(place->Name(), "inbox");
  EXPECT_EQ(transition->Name(), "Send");
  EXPECT_FALSE(place->Dirty() || transition->Dirty);
  const std::string ofPlace = "There is already another place on this workflow with that name.";
  const std::string ofTransition = "There is already another transition on this workflow with that name.";
  EXPECT_EQ(messages.Texts, (std::vector<std::string>{ofPlace, ofPlace, ofTransition, ofTransition}));
}

TEST(NodeName, EmptyNameOfATransitionBecomesTheNextFreeOne) {
  TestHost host;
  const auto transition = AddTransition(*host.Net, "X");
  transition->Name("");
  EXPECT_EQ(transition->Name(), "Transition");
  AddTransition(*host.Net, "Transition2")->Name("");
  EXPECT_EQ(host.Net->Transitions.Last()->Name(), "Transition3");
  transition->Workflow = nullptr;
  transition->Name("");
  EXPECT_EQ(transition->Name(), "");
}

TEST(Node, NewOneTakesPlaceAndSidesFromTheDesigner) {
  TestHost host;
  host.X = 40000;
  host.Y = 50;
  Place first;
  first.InputPosition(vntTop);
  Transition second;
  second.OutputPosition(vntBottom);
  const Place third;
  EXPECT_TRUE(third.Workflow == host.Net);
  EXPECT_EQ(third.Left(), 40000);
  EXPECT_EQ(third.Top(), 50);
  EXPECT_EQ(second.InputPosition(), vntTop);
  EXPECT_EQ(third.InputPosition(), vntTop);
  EXPECT_EQ(third.OutputPosition(), vntBottom);
  EXPECT_FALSE(first.Dirty());
  EXPECT_TRUE(second.Dirty);
}

TEST(DesignerState, ScopePutsEveryValueBackAndWithoutAControlTheBuiltInHostServes) {
  {
    TestHost host;
    Place().OutputPosition(vntTop);
    gintUseMode = vntRun;
  }
  EXPECT_EQ(gintOutputPosition, vntRight);
  EXPECT_EQ(gintUseMode, vntDesign);
  EXPECT_FALSE(gobjWorkflow);
  const Place place;
  EXPECT_FALSE(place.Workflow);
  EXPECT_FALSE(gobjVantrel->NewImage());
  EXPECT_EQ(gobjVantrel->SelectOption("?", {"a"}), std::nullopt);
  EXPECT_EQ(Elbow().Key, "Elbow1");
}

struct Spot {
  std::int16_t Side;
  float X, Y;
};

TEST(NodeDrawing, ConnectorsSitOnTheirSides) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  const auto transition = AddTransition(*host.Net);
  for (Node* node : {static_cast<Node*>(place.get()), static_cast<Node*>(transition.get())}) {
    GiveElements(*node);
    node->Visible(true);
    node->Left(1000.5F);
    node->Top(2000.5F);
    for (const auto& [side, x, y] :
         {Spot{vntTop, 1179, 1880.5F}, {vntRight, 1480.5F, 2181}, {vntBottom, 1179, 2480.5F}, {vntLeft, 880.5F, 2181}}) {
      node->InputPosition(side);
      node->OutputPosition(side);
      EXPECT_EQ(node->InConnector->Left(), x) << side;
      EXPECT_EQ(node->InConnector->Top(), y) << side;
      EXPECT_EQ(node->OutConnector->Left(), side == vntLeft && node == place.get() ? 881 : x) << side;
      EXPECT_EQ(node->OutConnector->Top(), y) << side;
    }
  }
  EXPECT_EQ(place->InConnector->Picture()->Key, "InputLeft");
  EXPECT_EQ(place->OutConnector->Picture()->Key, "OutputHorizontal");
}

TEST(ConnectorGeometry, FollowsTheSide) {
  TestHost host;
  const auto node = AddPlace(*host.Net);
  GiveElements(*node);
  for (const auto& connector : {node->InConnector, node->OutConnector}) {
    connector->MoveTo(1000, 2000);
    connector->Resize(241, 240);
  }
  struct Row {
    std::int16_t Side;
    float OutX, OutY, InX, InY;
  };
  for (const auto& [side, outX, outY, inX, inY] : {Row{vntTop, 1104, 2000, 1104, 2000},
                                                   {vntRight, 1241, 2120, 1225, 2120},
                                                   {vntBottom, 1104, 2240, 1104, 2224},
                                                   {vntLeft, 1000, 2120, 1000, 2120},
                                                   {0, 0, 0, 0, 0},
                                                   {5, 0, 0, 0, 0}}) {
    node->InputPosition(side);
    node->OutputPosition(side);
    EXPECT_EQ(OutputConnectorX(*node), outX) << side;
    EXPECT_EQ(OutputConnectorY(*node), outY) << side;
    EXPECT_EQ(InputConnectorX(*node), inX) << side;
    EXPECT_EQ(InputConnectorY(*node), inY) << side;
  }
}

TEST(PlaceDrawing, PictureAndCountFollowTheTokens) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  GiveElements(*place);
  place->Visible(true);
  EXPECT_EQ(place->Image->Picture()->Key, "Place");
  EXPECT_FALSE(place->CountLabel->Visible());
  PutToken(*place);
  EXPECT_EQ(place->Image->Picture()->Key, "PlaceGreen");
  EXPECT_EQ(place->CountLabel->Caption(), "1");
  EXPECT_TRUE(place->CountLabel->Visible());
  EXPECT_EQ(place->CountLabel->Top(), place->Top() + 480 + 75);
  place->TokenCount(0);
  EXPECT_FALSE(place->CountLabel->Visible());
  place->TokenCount(1'000'000);
  EXPECT_EQ(place->CountLabel->Caption(), "1000000");
  gintUseMode = vntRun;
  place->TokenCount(5);
  place->Left(9000);
  EXPECT_EQ(place->CountLabel->Caption(), "1000000");
  EXPECT_EQ(place->Image->Left(), 200);
}

TEST(PlaceDrawing, CaseMarksOfTokensSwitchThePictureOnOnly) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  GiveElements(*place);
  const auto token = host.Net->CreateToken(place);
  token->CaseEnabled(true);
  EXPECT_EQ(place->Image->Picture()->Key, "PlaceGreen");
  token->CaseEnabled(false);
  EXPECT_TRUE(place->CaseEnabled());
  place->CaseEnabled(false);
  EXPECT_EQ(place->Image->Picture()->Key, "Place");
}

TEST(NodeDrawing, HidingHidesConnectorsAndShowingDoesNotBringThemBack) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  const auto arc = Connect(place, AddTransition(*host.Net));
  GiveElements(*place);
  GiveElements(*arc);
  place->Visible(true);
  EXPECT_TRUE(arc->Visible());
  EXPECT_TRUE(place->OutConnector->Visible());
  EXPECT_FALSE(place->InConnector->Visible());
  place->InConnector->Visible(true);
  place->Visible(false);
  EXPECT_FALSE(arc->Visible() || place->OutConnector->Visible() || place->InConnector->Visible() || place->Image->Visible());
  place->Visible(true);
  EXPECT_FALSE(place->InConnector->Visible());
  EXPECT_TRUE(place->Image->Visible() && place->CaptionLabel->Visible());
}

TEST(NodeDrawing, CaptionIsFittedAndItsSizeRemembered) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  GiveElements(*place);
  place->Caption("i");
  const float narrow = place->CaptionWidth;
  place->Caption("a long caption");
  EXPECT_GT(place->CaptionWidth, narrow);
  EXPECT_EQ(place->CaptionLabel->Width(), place->CaptionWidth);
  EXPECT_EQ(host.FrameCalls, 2);
  place->CaptionLabel->Resize(1, 1);
  place->Visible(true);
  EXPECT_EQ(place->CaptionLabel->Width(), place->CaptionWidth);
  EXPECT_EQ(place->CaptionLabel->Top(), place->Top() - 200);
}

TEST(NodeClone, PlaceHasRecordsOfItsOwnAndTheDefaultInputSide) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  place->InputPosition(vntTop);
  place->OutputPosition(vntBottom);
  place->Caption("Inbox");
  place->Dirty(false);
  auto record = std::make_shared<PropertyRecord>();
  record->Name = "Colour";
  place->TokenProperties->Add(record, "Colour");
  gintInputPosition = vntRight;
  const auto clone = place->Clone();
  record->Name = "Size";
  EXPECT_EQ(clone->Caption() + clone->Name() + clone->Key, "Inbox");
  EXPECT_EQ(clone->TokenProperties->Item(1)->Name, "Colour");
  EXPECT_FALSE(clone->TokenProperties->Contains("Colour"));
  EXPECT_EQ(clone->InputPosition(), vntRight);
  EXPECT_EQ(clone->OutputPosition(), vntBottom);
  EXPECT_FALSE(clone->Dirty());
}

}  // namespace

}  // namespace vantrel

#include "designer/gestures/GestureTest.h"
#include "model/VNTRGlobal.h"

namespace vantrel::test {
namespace {

class ArcDrawing : public GestureTest {
 protected:
  Line& RubberBand() const { return Control->ChartArea.ctlLine.Template(); }
  void Begin(const Element& from) {
    Click(from);
    Control->StartArcInsert();
  }
};

TEST_F(ArcDrawing, TheRubberBandRunsFromTheConnectorToTheMouseAndTheClickJoins) {
  std::vector<std::shared_ptr<Arc>> inserted;
  const auto listening = Control->OnArcInserted.Connect([&](const std::shared_ptr<Arc>& arc) {
    inserted.push_back(arc);
    EXPECT_FALSE(Control->IsInsertingArc()) << "the event comes last";
  });
  auto& transition = GestureTest::Begin();
  Begin(*transition.Image);
  EXPECT_EQ(Tools.CurrentPointer(), vntPointerCross);
  Move(3000, 6000, vntNoButton);
  EXPECT_TRUE(RubberBand().Visible());
  EXPECT_EQ(RubberBand().X1(), OutputConnectorX(transition));
  EXPECT_EQ(RubberBand().Y2(), 6000);
  EXPECT_EQ(Tools.CurrentPointer(), vntPointerCross);
  Click(*End().Image);
  ASSERT_EQ(inserted.size(), 1U);
  EXPECT_TRUE(inserted[0]->Place == &End());
  EXPECT_EQ(inserted[0]->ArcDirection, vntOutArc);
  EXPECT_TRUE(LineOf(*inserted[0]).Visible());
  EXPECT_FALSE(RubberBand().Visible());
  EXPECT_EQ(Tools.CurrentPointer(), vntPointerDefault);
}

TEST_F(ArcDrawing, WithoutAStartPlaceNoTargetIsTakenForOne) {
  Net->StartPlace = nullptr;
  Control->CurrentX = 5000;
  const auto transition = Control->InsertTransition();
  Begin(*Start().Image);
  Click(*transition->Image);
  EXPECT_EQ(Net->Arcs.Count(), 2);
  EXPECT_TRUE(Messages.empty());
}

TEST_F(ArcDrawing, TheRulesSpeakUpAndTheGestureIsOver) {
  struct Case {
    Element* From;
    Element* To;
    const char* Message;
  };
  auto& transition = GestureTest::Begin();
  const Case cases[] = {
      {transition.Image.get(), Start().Image.get(), "Arcs are allowed to be drawn into a Start Place."},
      {Start().Image.get(), End().Image.get(),
       "Arcs are only permitted between Transitions and Places.  They are not permitted between like objects."},
      {Start().Image.get(), transition.Image.get(), "Only one arc is permitted between a transition and a place."},
  };
  for (const auto& each : cases) {
    Messages.clear();
    Begin(*each.From);
    Click(*each.To);
    EXPECT_EQ(Messages, std::vector<std::string>{each.Message});
    EXPECT_EQ(Net->Arcs.Count(), 1);
    EXPECT_FALSE(Control->IsInsertingArc());
    EXPECT_FALSE(Control->Input.IsCaptured());
  }
}

TEST_F(ArcDrawing, EscapeDeleteAndTheBackgroundAbandonIt) {
  const std::function<void()> ways[] = {
      [&] { Control->Input.Key(27, 0); },
      [&] { Click(9000, 7000); },
      [&] { Control->Input.Key(46, 0); },
  };
  for (const auto& way : ways) {
    Begin(*Start().Image);
    Move(3000, 6000, vntNoButton);
    way();
    EXPECT_FALSE(Control->IsInsertingArc());
    EXPECT_FALSE(RubberBand().Visible());
    EXPECT_FALSE(Control->CurrentControl());
    EXPECT_EQ(Tools.CurrentPointer(), vntPointerDefault);
  }
  EXPECT_EQ(Net->Places.Count(), 1) << "Delete then does what it does";
}

TEST_F(ArcDrawing, SurvivesTheEndOfItsSource) {
  auto& transition = GestureTest::Begin();
  Begin(*transition.Image);
  Control->DeleteObject(Net->Transitions.First());
  Move(3000, 6000, vntNoButton);
  Click(*End().Image);
  EXPECT_FALSE(Control->IsInsertingArc());
  EXPECT_TRUE(Net->Arcs.IsEmpty());
}

}  // namespace
}  // namespace vantrel::test

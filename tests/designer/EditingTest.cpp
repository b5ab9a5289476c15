#include <limits>

#include "designer/DesignerTest.h"

namespace vantrel::test {

namespace {

class EditingTest : public DesignerTest {
 protected:
  EditingTest() { Control->NewWorkflow(); }

  std::shared_ptr<Place> Start() const { return Net().Places.Item("Place1"); }
  std::shared_ptr<Transition> Begin() const { return Net().Transitions.Item("Transition1"); }
  std::shared_ptr<Arc> FirstArc() const { return Net().Arcs.Item("Arc1"); }
};

constexpr const char* kLikeObjects =
    "Arcs are only permitted between Transitions and Places.  They are not permitted between like objects.";

}  // namespace

TEST_F(EditingTest, InsertsNamedObjectsAtTheCurrentPosition) {
  Control->Dirty(false);
  const auto place = PlaceAt(2500, 700), captioned = PlaceAt(100, 50, "Waiting");
  const auto transition = TransitionAt(3000, 900);
  EXPECT_EQ(place->Key + place->Name() + place->Caption(), "Place3PlacePlace");
  EXPECT_EQ(captioned->Key + captioned->Name() + captioned->Caption(), "Place4Place1Waiting");
  EXPECT_EQ(transition->Key + transition->Name() + transition->Caption(), "Transition2TransitionTransition");
  EXPECT_EQ(place->Image->Bounds(), (Rect{2500, 700, 2980, 1180}));
  EXPECT_TRUE(place->Image->Visible() && place->CaptionLabel->Visible());
  EXPECT_FALSE(place->InConnector->Visible());
  EXPECT_EQ(captioned->CaptionWidth, captioned->CaptionLabel->Width());
  EXPECT_GT(captioned->CaptionWidth, place->CaptionWidth);
  EXPECT_TRUE(Net().Dirty() && Control->Dirty());
}

TEST_F(EditingTest, InsertsNothingWithoutWorkflow) {
  Control->Workflow(nullptr);
  EXPECT_THROW(Control->InsertPlace(), Error);
  EXPECT_THROW(Control->AddNotation(), Error);
  Control->Delete();
  Control->InsertElbow();
}

TEST_F(EditingTest, AddsAFlatFramedNote) {
  Control->CurrentX = 700;
  Control->CurrentY = 300;
  const auto note = Control->AddNotation();
  EXPECT_EQ(note->TextControl->Bounds(), (Rect{700, 300, 1900, 900}));
  EXPECT_EQ(note->TextControl->BorderStyle(), 1);
  EXPECT_EQ(note->TextControl->Appearance(), 0);
  EXPECT_TRUE(note->TextControl->Visible());
  EXPECT_TRUE(Control->Dirty());
}

TEST_F(EditingTest, GivesArcsADirectionAndRefusesBadOnes) {
  const auto place = PlaceAt(3000, 900), end = Net().Places.Item("Place2");
  EXPECT_EQ(Control->InsertArc(place, Begin())->ArcDirection, vntInArc);
  EXPECT_EQ(Control->InsertArc(Begin(), end)->ArcDirection, vntOutArc);
  EXPECT_TRUE(end->InConnector->Visible());
  const auto second = "Only one arc is permitted between a transition and a place.";
  const auto other = PlaceAt(5000, 900);
  other->OutConnector->Visible(true);  // as while an arc is drawn
  struct {
    std::shared_ptr<ModelObject> From, To;
    const char* Message;
  } const cases[] = {{Start(), end, kLikeObjects},     {Begin(), Begin(), kLikeObjects}, {other, place, kLikeObjects},
                     {Begin(), place, second},         {end, Begin(), second},           {Begin(), Start(), second},
                     {FirstArc(), place, kLikeObjects}};
  for (const auto& [from, to, message] : cases) {
    Messages.clear();
    EXPECT_EQ(Control->InsertArc(from, to), nullptr);
    EXPECT_EQ(Messages, std::vector<std::string>{message});
  }
  EXPECT_FALSE(other->OutConnector->Visible());
  EXPECT_TRUE(Start()->OutConnector->Visible());
  EXPECT_EQ(Net().Arcs.Count(), 3);
  EXPECT_THROW(Control->InsertArc(place, nullptr), Error);
}

TEST_F(EditingTest, StartsAnArcOnlyFromWhatMayHaveOne) {
  Control->StartArcInsert();
  Control->CurrentControl(Net().EndPlace()->Image.get());
  Control->StartArcInsert();
  EXPECT_EQ(Messages, (std::vector<std::string>{"First select an object that the arc will be drawn from.",
                                                "Arcs extending from an End Places is not allowed."}));
  EXPECT_FALSE(Control->IsInsertingArc());
  Control->CurrentControl(Start()->Image.get());
  Control->StartArcInsert();
  EXPECT_TRUE(Control->IsInsertingArc());
  EXPECT_EQ(Tools.CurrentPointer(), vntPointerCross);
  Control->ChartArea.ctlLine.Template().Visible(true);
  Control->NewWorkflow();
  EXPECT_FALSE(Control->IsInsertingArc()) << "another workflow ends the gesture";
  EXPECT_FALSE(Control->ChartArea.ctlLine.Template().Visible());
}

TEST_F(EditingTest, BendsAnArcAndStraightensItAgain) {
  const auto arc = FirstArc();
  Bend(*arc, 0, 600);
  Bend(*arc, 0, -900);
  EXPECT_EQ(arc->Segments().size(), 3U);
  EXPECT_EQ(Invariants(*Control).Faults(), "");
  Select({Net().Elbows.First(), Net().Elbows.Last(), Start()});
  while (arc->Segments().size() > 1) {
    Control->CurrentControl(arc->Segments().front()->LineControl.get());
    Control->RemoveElbow();
    EXPECT_EQ(Invariants(*Control).Faults(), "");
  }
  Control->CurrentControl(arc->Segments().front()->LineControl.get());
  Control->RemoveElbow();
  EXPECT_EQ(Net().Vectors.Count(), 1) << "an arc's only segment stays";
  Control->CurrentControl(Start()->Image.get());
  Control->InsertElbow();
  EXPECT_EQ(Net().Vectors.Count(), 1) << "no segment is current";
}

TEST_F(EditingTest, DeletesAPlaceWithWhatHangsOnIt) {
  Bend(*FirstArc(), 0, 500);
  const auto start = Start();
  start->AddToken(Control->Workflow()->CreateToken(start));
  Control->CurrentObject(start);
  Control->DeleteObject(start);
  EXPECT_EQ(Net().Arcs.Count() + Net().Vectors.Count() + Net().Elbows.Count(), 0);
  EXPECT_EQ(Net().Places.Count(), 1);
  EXPECT_FALSE(Net().StartPlace);
  EXPECT_TRUE(Net().EndPlace());
  EXPECT_FALSE(Begin()->InConnector->Visible());
  EXPECT_EQ(Control->CurrentObject(), nullptr);
  Control->DeleteObject(Net().EndPlace().Lock());
  EXPECT_FALSE(Net().EndPlace());
}

TEST_F(EditingTest, DeletesAnEnabledTransitionSoThatNothingWaitsToFire) {
  Start()->AddToken(Control->Workflow()->CreateToken(Start()));
  ASSERT_EQ(Net().FiringStack.Count(), 1);
  Control->DeleteObject(Begin());
  EXPECT_EQ(Net().FiringStack.Count(), 0);
  EXPECT_EQ(Net().Arcs.Count(), 0);
}

TEST_F(EditingTest, HidesAConnectorOnlyWithItsLastArc) {
  const auto place = PlaceAt(300, 2000);
  const auto second = Control->InsertArc(place, Begin());
  Control->DeleteObject(second);
  EXPECT_TRUE(Begin()->InConnector->Visible());
  EXPECT_FALSE(place->OutConnector->Visible());
  Control->DeleteObject(FirstArc());
  EXPECT_FALSE(Begin()->InConnector->Visible());
}

TEST_F(EditingTest, DeletesWhatTheCurrentElementShows) {
  struct {
    const char* What;
    std::function<Ref<Element>()> Current;
    std::int32_t Left;  // objects of the workflow
  } const cases[] = {{"the weight label of an arc", [&] { return Net().Arcs.First()->WeightLabel.get(); }, 3},
                     {"a segment", [&] { return Net().Arcs.First()->Segments().front()->LineControl.get(); }, 3},
                     {"the image of a transition", [&] { return Begin()->Image.get(); }, 2},
                     {"a caption", [&] { return Net().Places.Last()->CaptionLabel.get(); }, 1}};
  for (const auto& [what, current, left] : cases) {
    SCOPED_TRACE(what);
    if (Net().Transitions.Count() > 0 && Net().Arcs.IsEmpty()) Control->InsertArc(Start(), Begin());
    Control->Selection(nullptr);
    Control->CurrentControl(current());
    Control->Delete();
    EXPECT_EQ(Net().Places.Count() + Net().Transitions.Count() + Net().Arcs.Count(), left);
    EXPECT_FALSE(Control->CurrentControl());
    EXPECT_EQ(Control->Selection()->Count(), 0);
    EXPECT_EQ(Invariants(*Control).Faults(), "");
  }
}

TEST_F(EditingTest, DeletesTheSelectionOnceHoweverItHangsTogether) {
  Bend(*FirstArc(), 0, 500);
  Select({FirstArc(), Net().Vectors.First(), Net().Elbows.First(), Start(), Begin(), Control->AddNotation()});
  Control->Delete();
  EXPECT_EQ(Net().Places.Count(), 1);
  EXPECT_EQ(Net().Transitions.Count() + Net().Arcs.Count() + Net().Notations.Count(), 0);
}

TEST_F(EditingTest, InsertsNothingWhereNothingCanLie) {
  Control->SelectAll();
  Control->Copy();
  for (const float bad : {std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::infinity()}) {
    Control->CurrentY = bad;
    EXPECT_THROW(Control->InsertPlace(), Error);
    EXPECT_THROW(Control->InsertTransition(), Error);
    EXPECT_THROW(Control->AddNotation(), Error);
    EXPECT_THROW(Control->Paste(), Error);
    EXPECT_EQ(Net().Places.Count() + Net().Transitions.Count() + Net().Notations.Count(), 3) << "not even what is selected goes";
  }
  Control->CurrentX = 1e20F;
  Control->CurrentY = 200.6F;
  const auto note = Control->AddNotation();
  EXPECT_GT(note->Left(), 100'000'000) << "as far as whole twips reach";
  EXPECT_EQ(note->Top(), 201);
}

TEST_F(EditingTest, RefusesToDeleteWhatIsNotShown) {
  const auto foreign = std::make_shared<Place>();
  foreign->Key = "Place1";
  EXPECT_THROW(Control->DeleteObject(foreign), Error);
  EXPECT_THROW(Control->DeleteObject(nullptr), Error);
  Bend(*FirstArc(), 0, 500);
  Control->DeleteObject(Net().Elbows.First());
  EXPECT_EQ(Net().Elbows.Count(), 1) << "a bend point goes with its segment";
  EXPECT_EQ(Net().Places.Count(), 2);
}

}  // namespace vantrel::test

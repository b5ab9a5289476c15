#include <algorithm>
#include <random>

#include "designer/DesignerTest.h"

namespace vantrel::test {

namespace {

class ChartTest : public DesignerTest {};

struct Leg {
  float X1, Y1, X2, Y2;
};

/// An arc as a database gives it: segments in any order, without links, bend points or elements.
std::shared_ptr<Workflow> Stored(const std::vector<Leg>& pcolLegs) {
  const auto net = std::make_shared<Workflow>();
  const auto place = net->NewPlace();
  const auto transition = net->NewTransition();
  place->MoveTo(500, 1000);
  transition->MoveTo(4000, 1000);
  const auto arc = net->CreateArc(place, transition, vntInArc);
  net->Vectors.Clear();
  for (const auto& [x1, y1, x2, y2] : pcolLegs) {
    const auto vector = arc->AddSegment();
    vector->Start(x1, y1);
    vector->End(x2, y2);
  }
  return net;
}

std::vector<std::pair<float, float>> Bends(const Arc& pobjArc) {
  std::vector<std::pair<float, float>> bends;
  const auto segments = pobjArc.Segments();
  const Vector* segment = *std::find_if(segments.begin(), segments.end(), [](const Vector* each) { return !each->InVector; });
  for (; segment->OutVector; segment = segment->OutVector.get()) bends.emplace_back(segment->X2(), segment->Y2());
  return bends;
}

}  // namespace

TEST_F(ChartTest, MakesAndShowsTheDefaultWorkflow) {
  Control->ChartArea.Scale(9000, 6000);
  const auto workflow = Control->NewWorkflow();
  EXPECT_EQ(Control->Workflow(), workflow);
  EXPECT_EQ(gobjWorkflow, workflow);
  ASSERT_EQ(workflow->Arcs.Count(), 1);
  EXPECT_EQ(workflow->Arcs.First()->Name(), "StartPlace->Begin");
  std::string layout;
  for (const Node* node : {static_cast<Node*>(workflow->StartPlace.get()), static_cast<Node*>(workflow->Transitions.First().get()),
                           static_cast<Node*>(workflow->EndPlace().get())}) {
    layout += node->Key + " " + node->Caption() + " " + std::to_string(static_cast<int>(node->Left())) + "," +
              std::to_string(static_cast<int>(node->Top())) + "; ";
  }
  EXPECT_EQ(layout, "Place1 Start 500,3000; Transition1 Begin 2000,3000; Place2 End 4000,3000; ");
  EXPECT_FALSE(workflow->Dirty());
  EXPECT_FALSE(Control->Dirty());
  EXPECT_TRUE(workflow->Loaded);
  EXPECT_EQ(Tools.Pointers, (std::vector<PointerShape>{vntPointerHourglass, vntPointerDefault}));
  EXPECT_TRUE(Control->RefreshOn);
}

TEST_F(ChartTest, IsGreyAndEmptyWithoutWorkflow) {
  Control->NewWorkflow();
  Control->SelectAll();
  Control->Workflow(nullptr);
  EXPECT_EQ(Control->ChartArea.BackColor(), 0xC0C0C0);
  EXPECT_TRUE(Control->ChartArea.ElementsIn({-1e6F, -1e6F, 1e6F, 1e6F}).empty());
  EXPECT_EQ(Control->ChartArea.ctlImage.Count(), 1);
  Control->NewWorkflow();
  EXPECT_EQ(Control->ChartArea.BackColor(), kWhite);
}

TEST_F(ChartTest, LinksTheSegmentsOfAStoredArc) {
  const std::vector<std::pair<float, float>> path = {{2000, 500}, {2500, 1800}, {3000, 500}};
  struct {
    const char* What;
    std::vector<Leg> Legs;
  } const cases[] = {
      {"in order", {{980, 1240, 2000, 500}, {2000, 500, 2500, 1800}, {2500, 1800, 3000, 500}, {3000, 500, 4000, 1240}}},
      {"the first segment not first", {{2500, 1800, 3000, 500}, {3000, 500, 4000, 1240}, {980, 1240, 2000, 500}, {2000, 500, 2500, 1800}}},
      {"backwards", {{3000, 500, 4000, 1240}, {2500, 1800, 3000, 500}, {2000, 500, 2500, 1800}, {980, 1240, 2000, 500}}},
      {"ends that do not meet", {{980, 1240, 2000, 500}, {2001, 500, 2500, 1800}, {2501, 1800, 3000, 500}, {3001, 500, 4000, 1240}}},
  };
  for (const auto& [what, legs] : cases) {
    SCOPED_TRACE(what);
    const auto net = Stored(legs);
    Control->Workflow(net);
    EXPECT_EQ(Invariants(*Control).Faults(), "");
    const auto bends = Bends(*net->Arcs.First());
    ASSERT_EQ(bends.size(), path.size());
    if (std::string(what) != "ends that do not meet") {
      EXPECT_EQ(bends, path);
    }
    const auto elbow = net->Elbows.First();
    Control->Workflow(nullptr);
    Control->Workflow(net);
    EXPECT_EQ(net->Elbows.First(), elbow) << "what is linked keeps its bend points";
    EXPECT_EQ(net->Elbows.Count(), 3);
  }
}

TEST_F(ChartTest, GivesAnArcWithoutSegmentsOne) {
  Control->Workflow(Stored({}));
  EXPECT_EQ(Net().Vectors.Count(), 1);
}

TEST_F(ChartTest, LeavesSavedCaptionsAndConnectorsWhereTheyWere) {
  const auto net = Stored({{0, 0, 1, 1}});
  const auto transition = net->Transitions.First();
  transition->Caption("A text that would take far more room");
  transition->CaptionWidth = 700;
  transition->CaptionHeight = 300;
  transition->CaptionOffsetLeft(-50);
  transition->CaptionOffsetTop(520);
  transition->OutputPosition(vntBottom);
  Control->Workflow(net);
  EXPECT_EQ(transition->CaptionLabel->Bounds(), (Rect{3950, 1520, 4650, 1820}));
  EXPECT_EQ(transition->OutConnector->Top(), 1000 + transition->Image->Height());
}

TEST_F(ChartTest, DrawsTheSameAgain) {
  Control->NewWorkflow();
  Bend(*Net().Arcs.First(), 0, 300);
  Control->Workflow(Stored({{980, 1240, 2000, 500}, {2000, 500, 4000, 1240}}));
  int damages = 0;
  const auto listener = Control->ChartArea.OnDamaged.Connect([&](const Rect&) { ++damages; });
  Control->Refresh();
  EXPECT_LE(damages, 2) << "token counts alone come to the front again";
}

TEST_F(ChartTest, MovesAChartOutOfTheNegativeWithItsBends) {
  const auto net = Stored({{980, 1240, 2000, -800}, {2000, -800, 4000, 1240}});
  net->Places.First()->MoveTo(-3000, 1000);
  Control->Workflow(net);
  float left = 1e9F, top = 1e9F, right = 0;
  for (const auto* family : {&Control->ChartArea.ctlImage, &Control->ChartArea.ctlHandle}) {
    for (std::int32_t index = 1; index <= family->UpperBound(); ++index) {
      left = std::min(left, family->At(index)->Left());
      top = std::min(top, family->At(index)->Top());
      right = std::max(right, family->At(index)->Bounds().Right);
    }
  }
  EXPECT_EQ(left, 0);
  EXPECT_EQ(top, 0) << "the bend point lies highest";
  const auto handle = net->Elbows.First();
  EXPECT_EQ(net->Places.First()->Top() - handle->Top(), 1000 + 800 + handle->Handle->Height() / 2);
  EXPECT_EQ(Control->HScroll.Min(), 0);
  EXPECT_GE(Control->HScroll.Max(), right);
}

TEST_F(ChartTest, ScrollsAsFarAsObjectsLie) {
  Control->NewWorkflow();
  Net().Places.First()->MoveTo(-90'000, 50);
  Net().Places.Last()->MoveTo(100'000, 50);
  Control->ExtendScrollRange();
  EXPECT_LE(Control->HScroll.Min(), -90'000);
  EXPECT_GE(Control->HScroll.Max(), 100'000);
  EXPECT_LE(Control->VScroll.Min(), -150) << "captions count";
}

TEST_F(ChartTest, RedrawsNothingInRunMode) {
  Control->NewWorkflow();
  const auto image = Net().Transitions.First()->Image;
  image->Left(1);
  Control->UseMode(vntRun);
  Control->Refresh();
  EXPECT_EQ(image->Left(), 1);
  Control->UseMode(vntDesign);
  Control->Refresh();
  EXPECT_EQ(image->Left(), 2000);
}

TEST_F(ChartTest, ResetTakesATestOffTheChart) {
  Control->NewWorkflow();
  const auto net = Control->Workflow();
  const auto start = net->StartPlace.Lock();
  const auto begin = net->Transitions.First();
  Control->UseMode(vntTest);
  for (int i = 0; i < 3; ++i) start->AddToken(net->CreateToken(start));
  ASSERT_TRUE(begin->Enabled());
  Control->Reset();
  EXPECT_TRUE(start->Tokens().IsEmpty());
  EXPECT_FALSE(start->CountLabel->Visible());
  EXPECT_EQ(start->CountLabel->Caption(), "");
  EXPECT_EQ(start->Image->Picture()->Key, "Place");
  EXPECT_FALSE(begin->Enabled());
  EXPECT_EQ(begin->Image->Picture()->Key, "Transition");
  EXPECT_TRUE(net->FiringStack.IsEmpty());
  EXPECT_TRUE(net->Tokens.IsEmpty());
  Control->UseMode(vntDesign);
}

TEST_F(ChartTest, RepairsTheUnknownPictureOfATransitionButNotOfAPlace) {
  auto net = Stored({{0, 0, 1, 1}});
  net->Transitions.First()->DisabledImageKey = "Robot";
  net->Transitions.First()->EnabledImageKey = "RobotOn";
  Control->Workflow(net);
  EXPECT_EQ(net->Transitions.First()->EnabledImageKey, "TransitionEnabled");
  EXPECT_EQ(net->Transitions.First()->Image->Picture()->Key, "Transition");

  const auto before = net;
  Control->CurrentControl(net->Places.First()->Image.get());
  net = Stored({{0, 0, 1, 1}});
  net->Places.First()->DisabledImageKey = "Bucket";
  try {
    Control->Workflow(net);
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.Number, 35601);
    EXPECT_NE(error.Description.find("Bucket"), std::string::npos);
  }
  EXPECT_TRUE(Control->RefreshOn);
  EXPECT_EQ(Tools.CurrentPointer(), vntPointerDefault);
  EXPECT_EQ(Control->Workflow(), before) << "what was shown stays";
  EXPECT_EQ(Control->Selection()->Count(), 1);
}

TEST_F(ChartTest, ScrollBarsMoveTheOriginAndNothingElse) {
  Control->NewWorkflow();
  const float left = Net().Places.First()->Image->Left();
  Control->HScroll.Value(700);
  Control->VScroll.Value(-300);
  EXPECT_EQ(Control->ChartArea.ScaleLeft(), 700);
  EXPECT_EQ(Control->ChartArea.ScaleTop(), -300);
  EXPECT_EQ(Net().Places.First()->Image->Left(), left);
  Control->NewWorkflow();
  EXPECT_EQ(Control->ChartArea.ScaleLeft(), 0);
}

TEST_F(ChartTest, TakesSettingsFromTheWorkflow) {
  const auto net = Stored({{0, 0, 1, 1}});
  net->RunStyle = vntHidden;
  net->LockControls = true;
  Control->RunStyle(vntVerbose);
  Control->Workflow(net);
  EXPECT_EQ(Control->RunStyle(), vntHidden);
  EXPECT_TRUE(Control->LockControls());
  EXPECT_TRUE(Control->DesignMenu().Find(CommandIds::LockControls)->Checked);
}

TEST_F(ChartTest, PassesOnTokensOfTheShownWorkflowAlone) {
  std::vector<std::string> places;
  const auto listener = Control->OnTokenAdded.Connect(
      [&](const std::shared_ptr<Place>& place, const std::shared_ptr<Token>& token) { places.push_back(place->Key + token->Key); });
  const auto first = Control->NewWorkflow();
  const auto put = [](Workflow& net) { net.Places.Last()->AddToken(net.CreateToken(net.Places.Last())); };
  put(*first);
  Control->NewWorkflow();
  put(*first);
  put(*Control->Workflow());
  EXPECT_EQ(places, (std::vector<std::string>{"Place2Token1", "Place2Token1"}));
}

}  // namespace vantrel::test

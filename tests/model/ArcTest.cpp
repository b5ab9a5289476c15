#include "model/Arc.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/SingleDrawing.h"
#include "model/TestHost.h"

namespace vantrel {

namespace {

using namespace test;

/// A place and a transition 4000 twips apart, joined by a visible arc.
class ArcOnChart : public testing::Test {
 protected:
  explicit ArcOnChart(ArcDirectionConstant pintDirection = vntInArc) {
    mNet->ShowGuards = mNet->ShowWeights = true;
    mTransition->Left(4000);
    GiveElements(*mPlace);
    GiveElements(*mTransition);
    mArc = mNet->CreateArc(mPlace, mTransition, pintDirection);
    GiveElements(*mArc);
    mNet->Visible(true);
    mArc->Dirty = false;
  }

  std::shared_ptr<Vector> Segment(std::int32_t plngAt) const { return mArc->Vectors()->Item(plngAt); }
  std::shared_ptr<Elbow> BendPoint(std::int32_t plngAt) const { return mArc->Elbows()->Item(plngAt); }

  TestHost mHost;
  std::shared_ptr<Workflow> mNet = mHost.Net;
  std::shared_ptr<Place> mPlace = AddPlace(*mNet, "P1");
  std::shared_ptr<Transition> mTransition = AddTransition(*mNet, "T1");
  std::shared_ptr<Arc> mArc;
};

class OutArcOnChart : public ArcOnChart {
 protected:
  OutArcOnChart() : ArcOnChart(vntOutArc) {}
};

std::string CourseOf(const Vector& pobjVector) {
  std::string course;
  for (const float at : {pobjVector.X1(), pobjVector.Y1(), pobjVector.X2(), pobjVector.Y2()}) {
    course += std::to_string(static_cast<int>(at)) + " ";
  }
  return course;
}

/// The segments of an arc from its first to its last, as they are linked.
std::vector<const Vector*> ChainOf(const Arc& pobjArc) {
  std::vector<const Vector*> chain;
  const auto segments = pobjArc.Segments();
  for (const Vector* segment : segments) {
    if (!segment->InVector) chain.push_back(segment);
  }
  EXPECT_EQ(chain.size(), 1U);
  while (const Vector* next = chain.back()->OutVector.get()) {
    if (chain.size() > segments.size()) break;
    chain.push_back(next);
  }
  EXPECT_EQ(chain.size(), segments.size());
  return chain;
}

void ExpectSoundChain(const Arc& pobjArc) {
  const auto chain = ChainOf(pobjArc);
  const auto bendPoints = pobjArc.BendPoints();
  ASSERT_EQ(bendPoints.size(), chain.size() - 1);
  for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
    ASSERT_TRUE(chain[i + 1]->InVector == chain[i]);
    ASSERT_EQ(chain[i]->X2(), chain[i + 1]->X1());
    ASSERT_EQ(chain[i]->Y2(), chain[i + 1]->Y1());
    const auto joins = [&](const Elbow* elbow) { return elbow->InVector() == chain[i] && elbow->OutVector() == chain[i + 1]; };
    const auto elbow = std::find_if(bendPoints.begin(), bendPoints.end(), joins);
    ASSERT_NE(elbow, bendPoints.end());
    ASSERT_NEAR((*elbow)->Left() + 45, chain[i]->X2(), 0.01);
    ASSERT_NEAR((*elbow)->Top() + 45, chain[i]->Y2(), 0.01);
  }
}

TEST_F(ArcOnChart, DrawnOnceForAllLeadsToWhereItsEndsAreThen) {
  const auto other = Connect(mPlace, AddTransition(*mNet, "T2"));
  SingleDrawing once(*mNet);
  mPlace->MoveTo(300, 1200);
  const std::string before = CourseOf(*Segment(1));
  mTransition->MoveTo(6000, 900);
  other->Draw();
  mNet->Arcs.Remove(other->Key);
  once.Finish();
  const std::string after = CourseOf(*Segment(1));
  mArc->Draw();
  EXPECT_NE(before, after);
  EXPECT_EQ(after, CourseOf(*Segment(1)));
}

TEST_F(ArcOnChart, RunsFromTheOutputToTheInputOfTheOther) {
  EXPECT_EQ(CourseOf(*Segment(1)), "800 441 3880 441 ");
  EXPECT_EQ(mArc->Name(), "P1->T1");
  EXPECT_TRUE(mPlace->OutConnector->Visible() && mTransition->InConnector->Visible());
  EXPECT_FALSE(mPlace->InConnector->Visible() || mTransition->OutConnector->Visible());
  mPlace->Top(1200);
  EXPECT_EQ(CourseOf(*Segment(1)), "800 1441 3880 441 ");
  EXPECT_EQ(Segment(1)->LineControl->Y1(), 1441);
}

TEST_F(OutArcOnChart, RunsFromTheTransitionsOutputToThePlacesInput) {
  EXPECT_EQ(CourseOf(*Segment(1)), "4600 441 80 441 ");
  EXPECT_EQ(mArc->Name(), "T1->P1");
  EXPECT_FALSE(mPlace->OutConnector->Visible() || mTransition->InConnector->Visible());
}

TEST_F(ArcOnChart, SkipsWhatIsMissingAndDrawsTheRest) {
  mPlace->OutConnector = nullptr;
  mArc->CaptionLabel = nullptr;
  mTransition->Left(5000);
  EXPECT_EQ(CourseOf(*Segment(1)), "800 441 4880 441 ");
  EXPECT_EQ(mArc->WeightLabel->Left() + mArc->WeightLabel->Width() / 2, 2840);
  mArc->WeightLabel = nullptr;
  Segment(1)->LineControl = nullptr;
  mArc->Transition = nullptr;
  mArc->Draw();
  EXPECT_EQ(CourseOf(*Segment(1)), "800 441 4880 441 ");
}

TEST_F(ArcOnChart, LabelsStandAroundTheMiddleOfTheFirstSegment) {
  mArc->Guard("x > 3");
  mArc->Weight("22");
  mArc->CaptionOffsetX(50);
  mArc->WeightOffsetY(300);
  const auto middle = [](const Label& label) { return std::pair(label.Left() + label.Width() / 2, label.Top() + label.Height() / 2); };
  EXPECT_EQ(mArc->CaptionLabel->Caption(), "[x > 3]");
  EXPECT_EQ(middle(*mArc->CaptionLabel), std::pair(2390.0F, 241.0F));
  EXPECT_EQ(middle(*mArc->WeightLabel), std::pair(2340.0F, 741.0F));
  EXPECT_EQ(mHost.CurrentControlCalls, 1);
}

TEST_F(ArcOnChart, LabelsShowOnlyTextsThatTheWorkflowWantsShown) {
  for (int bits = 0; bits < 16; ++bits) {
    mNet->ShowGuards = bits & 1;
    mNet->ShowWeights = bits & 2;
    mArc->Guard(bits & 4 ? "g" : "");
    mArc->Weight(bits & 8 ? "2" : "");
    mArc->Draw();
    EXPECT_EQ(mArc->CaptionLabel->Visible(), (bits & 5) == 5) << bits;
    EXPECT_EQ(mArc->WeightLabel->Visible(), (bits & 10) == 10) << bits;
  }
}

TEST_F(ArcOnChart, DrawingIsNoChange) {
  mArc->InsertVector(Segment(1));
  mArc->Dirty = false;
  mNet->Dirty(false);
  mArc->Draw();
  mPlace->Draw();
  EXPECT_FALSE(mArc->Dirty || mNet->Dirty() || BendPoint(1)->Dirty());
}

TEST_F(ArcOnChart, SplittingHalvesTheSegmentWithABendPointBetween) {
  const auto old = Segment(1);
  mNet->Dirty(false);
  const auto added = mArc->InsertVector(old);
  EXPECT_EQ(CourseOf(*old), "800 441 2340 441 ");
  EXPECT_EQ(CourseOf(*added), "2340 441 3880 441 ");
  EXPECT_EQ(added->Key + " " + added->LineControl->Tag(), "Vector2 Vector2");
  EXPECT_EQ(BendPoint(1)->Key + " " + BendPoint(1)->Handle->Tag(), "Elbow1 Elbow1");
  EXPECT_EQ(mHost.Surface.ElementAt(2340, 441, 15), added->LineControl.get());
  EXPECT_FALSE(BendPoint(1)->Visible());
  EXPECT_TRUE(mArc->Dirty && mNet->Dirty());
  ExpectSoundChain(*mArc);
}

TEST_F(ArcOnChart, SelectionThickensTheLinesAndShowsTheBendPoints) {
  mArc->InsertVector(Segment(1));
  mArc->InsertVector(Segment(1));
  const auto look = [&] {
    std::string text = mArc->Selected() ? "selected " : "";
    for (const Vector* segment : mArc->Segments()) text += std::to_string(segment->LineControl->BorderWidth());
    for (const Elbow* elbow : mArc->BendPoints()) text += elbow->Handle->Visible() ? " shown" : " hidden";
    return text;
  };
  mArc->Setfocus();
  EXPECT_EQ(look(), "222 shown shown");
  mArc->RemoveFocus();
  EXPECT_EQ(look(), "111 hidden hidden");
  Segment(2)->Selected(true);
  mArc->Draw();
  EXPECT_EQ(look(), "selected 222 shown shown");
  mArc->Selected(false);
  EXPECT_EQ(look(), "111 hidden hidden");
}

TEST_F(ArcOnChart, DraggedBendPointTakesBothSegmentsAlong) {
  mArc->InsertVector(Segment(1));
  mArc->Dirty = false;
  BendPoint(1)->Left(500);
  BendPoint(1)->Top(900);
  EXPECT_EQ(CourseOf(*Segment(1)), "800 441 545 945 ");
  EXPECT_EQ(CourseOf(*Segment(2)), "545 945 3880 441 ");
  EXPECT_EQ(BendPoint(1)->Handle->Left(), 500);
  EXPECT_TRUE(mArc->Dirty && BendPoint(1)->Dirty() && Segment(2)->Dirty());
  mPlace->Left(0);
  EXPECT_EQ(CourseOf(*Segment(1)), "600 441 545 945 ");
  EXPECT_EQ(CourseOf(*Segment(2)), "545 945 3880 441 ");
}

TEST_F(ArcOnChart, JoiningTakesOutOneBendPointAndTheLineWhicheverSegmentGoes) {
  for (const std::size_t gone : {0, 1, 2}) {
    mArc->InsertVector(Segment(1));
    mArc->InsertVector(Segment(2));
    const auto lines = mHost.Surface.ctlLine.Count(), handles = mHost.Surface.ctlHandle.Count();
    const auto removed = mNet->Vectors.Item(ChainOf(*mArc)[gone]->Key);
    const float lastStart = Segment(3)->X1();
    mArc->RemoveVector(removed);
    ExpectSoundChain(*mArc);
    EXPECT_EQ(Segment(1)->X2(), gone == 1 ? lastStart : Segment(2)->X1());
    EXPECT_EQ(mHost.Surface.ctlLine.Count(), lines - 1) << gone;
    EXPECT_EQ(mHost.Surface.ctlHandle.Count(), handles - 1) << gone;
    EXPECT_FALSE(removed->Arc());
    mArc->RemoveVector(Segment(2));
    EXPECT_EQ(mArc->Elbows()->Count(), 0);
    EXPECT_EQ(CourseOf(*Segment(1)), "800 441 3880 441 ");
  }
}

TEST_F(ArcOnChart, SegmentMayBeGivenAsTheWorkflowHoldsIt) {
  mArc->InsertVector(mNet->Vectors.Item(1));
  mArc->RemoveVector(mNet->Vectors.Item(2));
  EXPECT_EQ(CourseOf(*Segment(1)), "800 441 3880 441 ");
  EXPECT_EQ(mNet->Vectors.Count(), 1);
}

TEST_F(ArcOnChart, AnySplitsJoinsAndDragsLeaveOneSoundChain) {
  std::mt19937 random(3);
  const auto below = [&](std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random); };
  Connect(mTransition, mPlace);
  for (int step = 0; step < 1500 && !HasFailure(); ++step) {
    const auto segments = mArc->Segments();
    const auto segment = ShareOf(*segments[below(segments.size())]);
    if (segments.size() == 1 || below(100) < 48) {
      mArc->InsertVector(segment);
    } else if (below(100) < 60) {
      mArc->RemoveVector(segment);
    } else {
      const auto bendPoints = mArc->BendPoints();
      bendPoints[below(bendPoints.size())]->Left(static_cast<float>(below(9000)));
    }
    if (below(10) == 0) mPlace->Left(static_cast<float>(below(9000)));
    ExpectSoundChain(*mArc);
    const auto chain = ChainOf(*mArc);
    EXPECT_EQ(chain.front()->X1(), mPlace->OutConnector->Left() + 120);
    EXPECT_EQ(chain.back()->X2(), 3880);
  }
  EXPECT_EQ(mNet->Vectors.Count(), static_cast<std::int32_t>(mArc->Segments().size()) + 1);
}

TEST_F(ArcOnChart, CloneInAnotherWorkflowIsBentAsTheOriginalIs) {
  mArc->InsertVector(Segment(1));
  mArc->InsertVector(Segment(1));
  BendPoint(1)->Top(3000);
  mArc->Guard("x");
  mArc->WeightOffsetX(70);
  const auto other = std::make_shared<Workflow>();
  const auto place = AddPlace(*other), decoy = AddPlace(*other);
  const auto transition = AddTransition(*other);
  Connect(decoy, transition);
  place->Left(mPlace->Left() + 1000.4F);
  place->Top(mPlace->Top() - 500);
  const auto clone = mArc->Clone(other, place, transition);
  ExpectSoundChain(*clone);
  ExpectSoundChain(*mArc);
  EXPECT_EQ(clone->Key + " " + ChainOf(*clone).front()->Key + " " + clone->BendPoints().front()->Key, "Arc2 Vector2 Elbow1");
  const auto original = ChainOf(*mArc), copied = ChainOf(*clone);
  for (std::size_t i = 0; i < original.size(); ++i) {
    EXPECT_EQ(copied[i]->X1(), original[i]->X1() + 1000);
    EXPECT_EQ(copied[i]->Y2(), original[i]->Y2() - 500);
  }
  EXPECT_EQ(clone->Guard() + std::to_string(static_cast<int>(clone->WeightOffsetX())), "x70");
  EXPECT_TRUE(clone->Dirty);
  EXPECT_TRUE(place->OutArcs.IsEmpty());
}

TEST_F(ArcOnChart, SegmentThatDiesElsewhereIsForgotten) {
  mArc->InsertVector(Segment(1));
  mNet->Elbows.Clear();
  mNet->Vectors.Remove("Vector2");
  mArc->Selected(true);
  mArc->Draw();
  EXPECT_EQ(CourseOf(*Segment(1)), "800 441 3880 441 ");
}

TEST(Vector, WidthIsAtLeastOneForTheCallerToo) {
  Vector vector;
  for (std::int16_t width : {std::int16_t{0}, std::int16_t{-3}}) {
    vector.LineWidth(width);
    EXPECT_EQ(width, 1);
  }
  vector.Setfocus();
  EXPECT_EQ(vector.LineWidth(), 3);
}

}  // namespace

}  // namespace vantrel

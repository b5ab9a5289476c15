// How a workflow makes and removes its objects, and what the path of an arc is.
#include <limits>
#include <utility>

#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/ErrorOf.h"

namespace vantrel::test {

namespace {

int ElementsOn(ChartSurface& pobjSurface) {
  return pobjSurface.ctlImage.Count() + pobjSurface.ctlLabel.Count() + pobjSurface.lblCount.Count() + pobjSurface.ctlLine.Count() +
         pobjSurface.ctlHandle.Count();
}

const std::vector<Point> kBent = {{0, 0}, {500, 200}, {900, 700}, {1500, 700}};

/// A place, a transition and a bent arc between them, on the chart of a control.
struct BentNet {
  TestHost Host;
  const int Before = ElementsOn(Host.Surface);
  std::shared_ptr<Place> From = Host.Net->NewPlace("from");
  std::shared_ptr<Transition> To = Host.Net->NewTransition("to");
  std::shared_ptr<Arc> Between = Connect(From, To);

  BentNet() {
    GiveElements(*From);
    GiveElements(*To);
    GiveElements(*Between);
    Between->Path(kBent);
  }
};

}  // namespace

TEST(NewObjects, BelongToTheirWorkflowWhateverTheControlShows) {
  TestHost host;
  host.X = host.Y = 4000;
  gintInputPosition = gintOutputPosition = vntTop;
  Workflow net;
  const auto place = net.NewPlace();
  EXPECT_EQ(place->Workflow, &net);
  EXPECT_EQ(net.Places.Find("Place1"), place);
  EXPECT_EQ(place->Left(), 200);
  EXPECT_EQ(place->InputPosition(), vntLeft);
  EXPECT_EQ(place->OutputPosition(), vntRight);
  const auto shown = host.Net->NewTransition();
  EXPECT_EQ(shown->Top(), 4000);
  EXPECT_EQ(shown->OutputPosition(), vntTop);
}

TEST(NewObjects, TakeTheNextFreeNameUnlessOneIsGiven) {
  Workflow net;
  net.NewPlace("Place4");
  net.NewPlace("Place20230101120000");
  EXPECT_EQ(net.NewPlace()->Name(), "Place5");
  EXPECT_EQ(net.NewTransition()->Name(), "Transition");
  EXPECT_EQ(net.NewNotation()->Key, "Notation1");
}

TEST(RemovedObjects, TakeWithThemWhatCannotStandAlone) {
  BentNet net;
  net.Host.Net->StartPlace = net.From;
  net.Host.Net->EndPlace(net.From);
  const auto gone = net.Host.Net->Remove(net.From);
  EXPECT_EQ(gone.size(), 1U + 1 + 3 + 2) << "place, arc, segments, bend points";
  EXPECT_TRUE(net.Host.Net->Arcs.IsEmpty() && net.Host.Net->Vectors.IsEmpty() && net.Host.Net->Elbows.IsEmpty());
  EXPECT_TRUE(net.To->InArcs.IsEmpty());
  EXPECT_FALSE(net.Host.Net->StartPlace || net.Host.Net->EndPlace());
  net.To->Enabled(true);
  net.Host.Net->Remove(net.To);
  EXPECT_TRUE(net.Host.Net->FiringStack.IsEmpty());
  EXPECT_EQ(ElementsOn(net.Host.Surface), net.Before);
}

TEST(RemovedObjects, StayWhereTheyDoNotBelong) {
  BentNet net;
  Workflow other;
  const auto stranger = other.NewPlace();
  EXPECT_EQ(ErrorOf([&] { net.Host.Net->Remove(stranger); }), vntErrInvalidCall);
  EXPECT_EQ(ErrorOf([&] { net.Host.Net->Remove(nullptr); }), vntErrObjectNotSet);
  net.Host.Net->z_RemoveArc(net.Between);
  const auto loose = net.Between->shared_from_this();
  EXPECT_EQ(ErrorOf([&] { net.Host.Net->Remove(loose); }), vntErrInvalidCall);
  EXPECT_EQ(net.Host.Net->Places.Count(), 1);
}

TEST(RemovedObjects, BendPointLeavesAStraightRun) {
  BentNet net;
  const int lines = net.Host.Surface.ctlLine.Count(), handles = net.Host.Surface.ctlHandle.Count();
  net.Host.Net->Remove(net.Host.Net->Elbows.First());
  EXPECT_EQ(net.Between->Path(), (std::vector<Point>{kBent[0], kBent[2], kBent[3]}));
  EXPECT_EQ(net.Host.Surface.ctlLine.Count(), lines - 1);
  EXPECT_EQ(net.Host.Surface.ctlHandle.Count(), handles - 1);
}

TEST(ArcPath, IsReplacedWithItsElements) {
  BentNet net;
  EXPECT_EQ(net.Between->Path(), kBent);
  const auto first = net.Between->Segments().front();
  for (const auto& points : {std::vector<Point>{{1, 2}, {3, 4}}, kBent, std::vector<Point>{{0, 0}, {7, 7}, {9, 0}}}) {
    net.Between->Path(points);
    EXPECT_EQ(net.Between->Path(), points);
    EXPECT_EQ(net.Between->Segments().front(), first) << "labels sit at the first segment";
    EXPECT_EQ(net.Host.Surface.ctlLine.Count(), static_cast<int>(points.size())) << "with the template";
    EXPECT_EQ(net.Host.Surface.ctlHandle.Count(), static_cast<int>(points.size()) - 1);
    for (const auto& elbow : net.Host.Net->Elbows) {
      const Rect handle = elbow->Handle->Bounds();
      EXPECT_EQ((handle.Left + handle.Right) / 2, elbow->InVector()->X2());
      EXPECT_EQ(elbow->Handle->Tag(), elbow->Key);
    }
  }
  EXPECT_EQ(ErrorOf([&] { net.Between->Path({{1, 1}}); }), vntErrInvalidCall);
}

TEST(ArcPath, IsCopiedAfterTheArcOrItsWorkflowIsGone) {
  for (const bool closes : {false, true}) {
    auto net = std::make_shared<Workflow>();
    const auto place = net->NewPlace();
    const auto transition = net->NewTransition();
    const auto arc = Connect(place, transition);
    arc->Path(kBent);
    if (!closes) net->Remove(arc);
    if (closes) net = nullptr;
    const auto other = std::make_shared<Workflow>();
    const auto end = other->NewPlace();
    end->MoveTo(place->Left() + 100, place->Top());
    const auto copy = arc->Clone(other, end, other->NewTransition());
    EXPECT_EQ(copy->Path(), (std::vector<Point>{{100, 0}, {600, 200}, {1000, 700}, {1600, 700}}));
    EXPECT_EQ(other->Elbows.Count(), 2);
  }
}

TEST(NullObjects, AndSegmentsOfOtherArcsAreRefused) {
  BentNet net;
  Workflow& workflow = *net.Host.Net;
  const auto other = Connect(net.To, workflow.NewPlace());
  const auto foreign = other->Vectors()->First();
  Arc& arc = *net.Between;
  const std::function<void()> calls[] = {
      [&] { workflow.CreateArc(nullptr, net.To, vntInArc); },
      [&] { workflow.CreateArc(net.From, nullptr, vntInArc); },
      [&] { workflow.z_RemoveArc(nullptr); },
      [&] { arc.InsertVector(nullptr); },
      [&] { arc.RemoveVector(nullptr); },
      [&] { (void)arc.Clone(nullptr, net.From, net.To); },
      [&] { (void)arc.Clone(net.Host.Net, nullptr, net.To); },
      [&] { (void)arc.Clone(net.Host.Net, net.From, nullptr); },
  };
  for (const auto& call : calls) EXPECT_EQ(ErrorOf(call), vntErrObjectNotSet);
  EXPECT_EQ(ErrorOf([&] { arc.InsertVector(foreign); }), vntErrInvalidCall);
  EXPECT_EQ(ErrorOf([&] { arc.RemoveVector(foreign); }), vntErrInvalidCall);
  EXPECT_EQ(workflow.Arcs.Count(), 2);
  EXPECT_EQ(arc.Path(), kBent);
}

TEST(Records, AreThereAsLongAsTheLoopThatWalksThem) {
  BentNet net;
  std::string names;
  for (const auto& record : *net.From->GetProperties()) names += record->Name + " ";
  EXPECT_EQ(names, "Name Caption Description SelectionType Object InputPosition OutputPosition Tag TokenProperties ");
  int segments = 0, bends = 0;
  for (const auto& segment : *net.Between->Vectors()) segments += segment->Arc() == net.Between;
  for (const auto& elbow : *net.Between->Elbows()) bends += elbow->OutVector() ? 1 : 0;
  EXPECT_EQ(segments * 10 + bends, 32);
}

/// A listener lets go of the workflow while one of its objects, which nobody else holds, is being changed.
TEST(Listeners, MayTakeTheWorkflowAwayDuringAChange) {
  const std::function<void(Workflow&)> changes[] = {
      [](Workflow& net) { net.Places.First()->SetProperty("Tag", "t"); },
      [](Workflow& net) { net.Transitions.First()->SetProperty("Tag", "t"); },
      [](Workflow& net) { net.Arcs.First()->SetProperty("Guard", "g"); },
      [](Workflow& net) { net.Notations.First()->SetProperty("Caption", "c"); },
      [](Workflow& net) { net.SetProperty("KeepHistory", true); },
      [](Workflow& net) { net.Places.First()->SetProperties(net.Places.First()->GetProperties()); },
      [](Workflow& net) { net.Transitions.First()->SetProperties(net.Transitions.First()->GetProperties()); },
      [](Workflow& net) { net.Arcs.First()->SetProperties(net.Arcs.First()->GetProperties()); },
      [](Workflow& net) { net.Vectors.First()->SetProperties(net.Vectors.First()->GetProperties()); },
      [](Workflow& net) { net.Notations.First()->SetProperties(net.Notations.First()->GetProperties()); },
      [](Workflow& net) { net.SetProperties(net.GetProperties()); },
      [](Workflow& net) { net.Arcs.First()->RemoveVector(net.Vectors.Last()); },
      [](Workflow& net) { net.Arcs.First()->InsertVector(net.Vectors.First()); },
      [](Workflow& net) { net.Remove(net.Elbows.First()); },
  };
  for (const auto& change : changes) {
    BentNet net;
    net.Host.Net->NewNotation();
    net.From = nullptr;
    net.To = nullptr;
    net.Between = nullptr;
    net.Host.OnDirty = [&] { net.Host.Net = nullptr; };
    change(*net.Host.Net);
    EXPECT_FALSE(net.Host.Net);
  }
}

TEST(TokenCount, IsShownAsTheNumberThatItIs) {
  BentNet net;
  net.From->Visible(true);
  for (const auto& [count, text] : {std::pair{3.F, "3"}, {2.5F, "2.5"}, {1e20F, "1e+20"}, {-1.F, "-1"}}) {
    net.From->TokenCount(count);
    EXPECT_EQ(net.From->CountLabel->Caption(), text);
  }
  net.From->TokenCount(std::numeric_limits<float>::quiet_NaN());
}

TEST(LineWidth, OfAnyIntegerIsCorrectedWhereTheCallerKeepsIt) {
  Vector segment;
  int width = -3;
  segment.LineWidth(width);
  EXPECT_EQ(width, 1);
  segment.LineWidth(0);
  EXPECT_EQ(segment.LineWidth(), 1);
  EXPECT_EQ(ErrorOf([&] { segment.LineWidth(70000); }), vntErrOverflow);
  EXPECT_EQ(segment.LineWidth(), 1);
}

TEST(Captions, LeaveTheirLabelWhereTheDrawingPutIt) {
  BentNet net;
  Label& label = *net.From->CaptionLabel;
  label.Alignment(2);
  label.MoveTo(700, 300);
  net.From->Caption("a caption that is wider than the label was");
  EXPECT_EQ(label.Left(), 700);
  EXPECT_GT(label.Width(), 1000);
  EXPECT_EQ(net.From->CaptionWidth, label.Width());
}

TEST(PlaceVisible, CoversEveryArcOfTheWorkflowWhosePlaceItIs) {
  BentNet net;
  const auto unlisted = net.Host.Net->CreateArc(net.From, net.To, static_cast<ArcDirectionConstant>(0));
  const auto moved = Connect(net.To, net.Host.Net->NewPlace());
  moved->Place = net.From;
  const auto left = Connect(net.From, net.To);
  left->Place = moved->Place;
  net.Host.Net->z_RemoveArc(left);
  net.From->Visible(true);
  EXPECT_TRUE(net.Between->Visible() && unlisted->Visible() && moved->Visible());
  EXPECT_FALSE(left->Visible()) << "it is no longer the workflow's";
  moved->Place = nullptr;
  net.From->Visible(false);
  EXPECT_FALSE(net.Between->Visible() || unlisted->Visible());
  EXPECT_TRUE(moved->Visible());
  net.Host.Net->Remove(net.From);
  net.From = nullptr;
  EXPECT_FALSE(unlisted->Place);
}

TEST(NewBendPoint, HandleIsCentredByItsWidth) {
  BentNet net;
  Image& handle = *net.Host.Net->Elbows.First()->Handle;
  handle.Resize(90, 150);
  Elbow& elbow = *net.Host.Net->Elbows.First();
  elbow.CentreHandleByWidth(1000, 1000);
  EXPECT_EQ(elbow.Left(), 955);
  EXPECT_EQ(elbow.Top(), 955);
}

TEST(Embedding, OfManyWorkflowsInOneAnotherEndsWithoutDeepCalls) {
  auto outer = std::make_shared<Workflow>();
  auto level = outer;
  for (int depth = 0; depth < 50000; ++depth) {
    auto inner = std::make_shared<Workflow>();
    const auto transition = level->NewTransition("T");
    transition->Object(inner);
    if (depth % 2 == 0) transition->Subflow(inner);
    level = inner;
  }
  const Ref<Workflow> innermost(level);
  level = nullptr;
  outer = nullptr;
  EXPECT_TRUE(innermost.Expired());
}

TEST(Ref, OfAnImageServesAsOneOfAnElement) {
  TestHost host;
  const Ref<Image> image = host.NewImage();
  const Ref<Element> element = image;
  EXPECT_EQ(element.get(), image.get());
  image->Unload();
  EXPECT_EQ(element.Expired(), image.Expired());
}

}  // namespace vantrel::test

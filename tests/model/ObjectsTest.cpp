// How a workflow makes and removes its objects, and what the path of an arc is.
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

}  // namespace vantrel::test

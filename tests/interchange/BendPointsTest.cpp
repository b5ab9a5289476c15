#include "interchange/BendPoints.h"

#include <cmath>
#include <numbers>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PnmlSamples.h"

namespace vantrel {

namespace {

using Line = std::vector<PlanePoint>;

MATCHER_P2(IsPoint, x, y, "") { return arg.X == x && arg.Y == y; }

TEST(SimplifyLine, PointsOnTheWayAreDropped) {
  EXPECT_THAT(SimplifyLine({{0, 0}, {10, 0.5}, {20, -0.9}, {20, 0}, {30, 0}}, 1), testing::ElementsAre(IsPoint(0, 0), IsPoint(30, 0)));
  EXPECT_THAT(SimplifyLine({{0, 0}, {10, 0}, {10, 10}, {10, 20}}, 1), testing::ElementsAre(IsPoint(0, 0), IsPoint(10, 0), IsPoint(10, 20)));
}

TEST(SimplifyLine, TurningBackIsNoStraightLine) {
  EXPECT_THAT(SimplifyLine({{0, 0}, {50, 0}, {10, 0}}, 1), testing::SizeIs(3));
  EXPECT_THAT(SimplifyLine({{0, 0}, {50, 0}, {0, 0}}, 1), testing::SizeIs(3));
}

TEST(SimplifyLine, ManySmallStepsDoNotAddUp) {
  Line arc;
  for (int degree = 0; degree <= 90; ++degree) {
    arc.push_back({100 * std::cos(degree * std::numbers::pi / 180), 100 * std::sin(degree * std::numbers::pi / 180)});
  }
  const Line simple = SimplifyLine(arc, 1);
  EXPECT_LT(simple.size(), 15U);
  for (std::size_t at = 1; at < simple.size(); ++at) {
    const double middle = std::hypot(simple[at - 1].X + simple[at].X, simple[at - 1].Y + simple[at].Y) / 2;
    EXPECT_GT(middle, 99);
  }
}

TEST(SimplifyLine, EndlessZigzagStaysAffordable) {
  Line zigzag;
  for (int at = 0; at < 100'000; ++at) zigzag.push_back({static_cast<double>(at), at % 2 == 0 ? 0.0 : 1.0 + at});
  EXPECT_EQ(SimplifyLine(zigzag, 1).size(), zigzag.size());
}

TEST(SimplifyLine, LooseBendsOfAFieldNetAreDropped) {
  const auto path = test::FieldNet("13_prom64_running_example.pnml");
  if (!path) GTEST_SKIP() << "VANTREL_NETS names no folder with the net";
  for (const PnmlArc& arc : PnmlReader().ReadFile(*path).Arcs) {
    if (!arc.Bends.empty()) {
      EXPECT_THAT(SimplifyLine(arc.Bends, 1), testing::SizeIs(2));
    }
  }
}

}  // namespace

}  // namespace vantrel

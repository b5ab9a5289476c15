#include "designer/gestures/SegmentHit.h"

#include <random>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct Case {
  const char* What;
  float X1, Y1, X2, Y2;
  float X, Y;
  bool IsHit;
};

TEST(SegmentHit, IsRelativeToTheCoordinate) {
  const Case cases[] = {
      {"2 per cent below a level line", 0, 500, 1000, 500, 500, 510, true},
      {"just beyond", 0, 500, 1000, 500, 500, 511, false},
      {"2 per cent above a level line", 0, 500, 1000, 500, 500, 490, true},
      {"beyond its end", 0, 500, 1000, 500, 1001, 500, false},
      {"drawn from right to left", 1000, 500, 0, 500, 500, 505, true},
      {"upright, on its x and near its upper end", 700, 0, 700, 900, 700, 0, true},
      {"upright, beside it", 700, 0, 700, 900, 701, 300, false},
      {"slanting, near by y", 0, 1000, 1000, 2000, 500, 1520, true},
      {"steep, near by x alone", 2000, 0, 2010, 9000, 2030, 4500, true},
      {"where coordinates are negative nothing is near", -1000, -500, 1000, -500, 0, -501, false},
      {"on it, where coordinates are negative", -1000, 0, 1000, 0, -5, 0, true},
  };
  for (const Case& each : cases) {
    Line line;
    line.Place(each.X1, each.Y1, each.X2, each.Y2);
    EXPECT_EQ(HitsSegment(line, each.X, each.Y), each.IsHit) << each.What;
  }
}

TEST(SegmentHit, AFixedToleranceHelpsWhereTheRelativeOneIsNarrow) {
  ChartSurface chart;
  const auto upright = chart.ctlLine.New();
  upright->Place(700, 100, 700, 900);
  upright->Visible(true);
  EXPECT_EQ(SegmentAt(chart, 740, 500), upright);
  EXPECT_EQ(SegmentAt(chart, 790, 500), nullptr);
  upright->Visible(false);
  EXPECT_EQ(SegmentAt(chart, 700, 500), nullptr);
}

TEST(SegmentHit, PrefersWhatIsUnderTheMouseToWhatIsNearByCoordinate) {
  ChartSurface chart;
  const auto far = chart.ctlLine.New(), near = chart.ctlLine.New();
  far->Place(0, 50000, 100000, 50000);
  near->Place(0, 50900, 100000, 50900);
  far->Visible(true);
  near->Visible(true);
  EXPECT_EQ(SegmentAt(chart, 60000, 50890), near);
  EXPECT_EQ(SegmentAt(chart, 60000, 50500), far) << "the first of two that are near by coordinate";
}

// The grid must not lose a segment that the rule, applied to all of them, finds.
TEST(SegmentHit, FindsWhatASearchThroughAllFinds) {
  ChartSurface chart;
  std::mt19937 random(7);
  std::uniform_real_distribution<float> at(-3000, 90000);
  for (int i = 0; i < 400; ++i) {
    const auto line = chart.ctlLine.New();
    const float x = at(random), y = at(random);
    line->Place(x, y, i % 5 ? x + at(random) / 20 : x, i % 7 ? y + at(random) / 20 : y);
    line->Visible(i % 11 != 0);
  }
  int hits = 0;
  for (int i = 0; i < 4000; ++i) {
    const float x = at(random), y = at(random);
    std::shared_ptr<Line> near, relative;
    for (std::int32_t index = 1; index <= chart.ctlLine.UpperBound(); ++index) {
      const auto line = chart.ctlLine.At(index);
      if (!line->Visible()) continue;
      if (!near && line->Covers(x, y, kHitTolerance)) near = line;
      if (!relative && HitsSegment(*line, x, y)) relative = line;
    }
    const auto found = SegmentAt(chart, x, y);
    ASSERT_EQ(found, near ? near : relative) << x << ", " << y;
    hits += found != nullptr;
  }
  EXPECT_GT(hits, 100);
}

}  // namespace
}  // namespace vantrel

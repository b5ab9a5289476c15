#include "interchange/layout/LayoutJudge.h"

#include <string>

#include <gtest/gtest.h>

#include "PnmlSamples.h"

namespace vantrel {

namespace {

constexpr float kSpot = 15;

using Positions = std::vector<std::optional<LayoutPoint>>;

TEST(NeedsLayout, WhenANodeHasNoPlaceOrMostShareOne) {
  EXPECT_FALSE(NeedsLayout({}, kSpot));
  EXPECT_FALSE(NeedsLayout({LayoutPoint{0, 0}}, kSpot));
  EXPECT_TRUE(NeedsLayout({LayoutPoint{0, 0}, std::nullopt}, kSpot));
  EXPECT_TRUE(NeedsLayout({LayoutPoint{1, 1}, LayoutPoint{9, 9}, LayoutPoint{-50, 0}}, kSpot));
  EXPECT_FALSE(NeedsLayout({LayoutPoint{1, 1}, LayoutPoint{9, 9}, LayoutPoint{-50, 0}, LayoutPoint{50, 0}}, kSpot));
  EXPECT_FALSE(NeedsLayout({LayoutPoint{5, 5}, LayoutPoint{-5, 5}}, kSpot));
}

struct FieldCase {
  const char* File;
  bool Useless;
};

void PrintTo(const FieldCase& pobjCase, std::ostream* pobjStream) { *pobjStream << pobjCase.File; }

class FieldLayouts : public testing::TestWithParam<FieldCase> {};

TEST_P(FieldLayouts, AreKeptWhenTheyShowTheNet) {
  const auto path = test::FieldNet(GetParam().File);
  if (!path) GTEST_SKIP() << "VANTREL_NETS names no folder with " << GetParam().File;
  Positions positions;
  for (const PnmlNode& node : PnmlReader().ReadFile(*path).Nodes) {
    positions.emplace_back();
    if (node.Position) positions.back() = {static_cast<float>(node.Position->X), static_cast<float>(node.Position->Y)};
  }
  EXPECT_EQ(NeedsLayout(positions, kSpot), GetParam().Useless);
}

INSTANTIATE_TEST_SUITE_P(, FieldLayouts,
                         testing::Values(FieldCase{"04_woped_example_xor_bends.pnml", false},
                                         FieldCase{"13_prom64_running_example.pnml", false}, FieldCase{"14_prom64_a42_bends.pnml", false},
                                         FieldCase{"15_prom64_roadtraffic_nographics.pnml", true},
                                         FieldCase{"17_data_petri_net_guards.pnml", true},
                                         FieldCase{"19_prom64_clustering_192nodes_bends.pnml", false},
                                         FieldCase{"20_yasper_bom.pnml", false}, FieldCase{"25_perm2_760nodes_3456arcs.pnml", true},
                                         FieldCase{"27_editor_1456nodes_graphics.pnml", false}));

}  // namespace

}  // namespace vantrel

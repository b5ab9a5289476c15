#include "interchange/layout/LayeredLayout.h"

#include <algorithm>
#include <optional>
#include <random>
#include <stdexcept>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "interchange/layout/LayerGraph.h"
#include "interchange/layout/LayerOrder.h"

namespace vantrel {

namespace {

LayoutGraph Graph(std::int32_t plngNodes, std::vector<LayoutEdge> pcolEdges, std::optional<std::int32_t> pobjStart = {}) {
  LayoutGraph graph;
  graph.Nodes.assign(static_cast<std::size_t>(plngNodes), {900, 600});
  graph.Edges = std::move(pcolEdges);
  graph.Start = pobjStart;
  return graph;
}

/// Nodes of any size, edges of any kind, several components.
LayoutGraph RandomGraph(unsigned plngSeed) {
  std::mt19937 random(plngSeed);
  const auto below = [&random](std::uint32_t limit) { return static_cast<std::int32_t>(random() % limit); };
  const std::uint32_t nodes = 1 + random() % 60;
  LayoutGraph graph;
  for (std::uint32_t node = 0; node < nodes; ++node) {
    graph.Nodes.push_back({static_cast<float>(100 + below(2000)), static_cast<float>(100 + below(1500))});
  }
  for (std::int32_t edges = below(3 * nodes); edges > 0; --edges) graph.Edges.push_back({below(nodes), below(nodes)});
  if (random() % 2 == 0) graph.Start = below(nodes);
  return graph;
}

bool Overlap(const LayoutGraph& pobjGraph, const LayoutResult& pobjResult, std::size_t plngFirst, std::size_t plngSecond) {
  const auto apart = [](float start, float size, float otherStart, float otherSize) {
    return start + size <= otherStart || otherStart + otherSize <= start;
  };
  const LayoutPoint& first = pobjResult.TopLeft[plngFirst];
  const LayoutPoint& second = pobjResult.TopLeft[plngSecond];
  const LayoutSize& firstSize = pobjGraph.Nodes[plngFirst];
  const LayoutSize& secondSize = pobjGraph.Nodes[plngSecond];
  return !apart(first.X, firstSize.Width, second.X, secondSize.Width) && !apart(first.Y, firstSize.Height, second.Y, secondSize.Height);
}

std::size_t CountOverlaps(const LayoutGraph& pobjGraph, const LayoutResult& pobjResult) {
  std::size_t overlaps = 0;
  for (std::size_t first = 0; first < pobjGraph.Nodes.size(); ++first) {
    for (std::size_t second = 0; second < first; ++second) overlaps += Overlap(pobjGraph, pobjResult, first, second);
  }
  return overlaps;
}

TEST(LayeredLayout, NoNodesOverlapWhateverTheGraph) {
  for (unsigned seed = 0; seed < 120; ++seed) {
    const LayoutGraph graph = RandomGraph(seed);
    EXPECT_EQ(CountOverlaps(graph, ArrangeInLayers(graph)), 0U) << "seed " << seed;
  }
}

/// Whether the run between two points enters a node, tried at close steps.
bool RunsThrough(const LayoutGraph& pobjGraph, const LayoutResult& pobjResult, const LayoutPoint& pobjFrom, const LayoutPoint& pobjTo) {
  constexpr int kSteps = 100;
  for (int step = 0; step <= kSteps; ++step) {
    const float share = static_cast<float>(step) / kSteps;
    const float x = pobjFrom.X + (pobjTo.X - pobjFrom.X) * share;
    const float y = pobjFrom.Y + (pobjTo.Y - pobjFrom.Y) * share;
    for (std::size_t node = 0; node < pobjGraph.Nodes.size(); ++node) {
      const LayoutPoint& corner = pobjResult.TopLeft[node];
      const LayoutSize& size = pobjGraph.Nodes[node];
      if (x > corner.X && x < corner.X + size.Width && y > corner.Y && y < corner.Y + size.Height) return true;
    }
  }
  return false;
}

TEST(LayeredLayout, BendsLeadPastTheNodesBetween) {
  std::size_t runs = 0;
  for (unsigned seed = 0; seed < 60; ++seed) {
    const LayoutGraph graph = RandomGraph(seed);
    const LayoutResult result = ArrangeInLayers(graph);
    for (const auto& bends : result.Bends) {
      for (std::size_t at = 1; at < bends.size(); ++at, ++runs) {
        EXPECT_FALSE(RunsThrough(graph, result, bends[at - 1], bends[at])) << "seed " << seed;
      }
    }
  }
  EXPECT_GT(runs, 100U);
}

TEST(LayeredLayout, SameGraphGivesTheSameDrawing) {
  const LayoutGraph graph = RandomGraph(7);
  const auto flat = [&graph] {
    std::vector<float> numbers;
    const LayoutResult result = ArrangeInLayers(graph);
    for (const LayoutPoint& point : result.TopLeft) numbers.insert(numbers.end(), {point.X, point.Y});
    for (const auto& bends : result.Bends) {
      for (const LayoutPoint& point : bends) numbers.insert(numbers.end(), {point.X, point.Y});
    }
    return numbers;
  };
  EXPECT_EQ(flat(), flat());
}

TEST(LayeredLayout, EdgesLeadRightFromTheStartButThoseThatCloseACycle) {
  const LayoutResult result = ArrangeInLayers(Graph(5, {{3, 1}, {1, 2}, {2, 0}, {0, 3}, {1, 0}, {2, 4}, {2, 2}}, 3));
  const std::vector<std::int32_t> order{3, 1, 2, 0};
  for (std::size_t at = 1; at < order.size(); ++at) {
    EXPECT_LT(result.TopLeft[static_cast<std::size_t>(order[at - 1])].X, result.TopLeft[static_cast<std::size_t>(order[at])].X);
  }
  EXPECT_GT(result.TopLeft[4].X, result.TopLeft[2].X);
}

TEST(LayeredLayout, StraightChainIsOneLevelRowWithRoomBetween) {
  const LayoutResult result = ArrangeInLayers(Graph(4, {{0, 1}, {1, 2}, {2, 3}}));
  for (std::size_t node = 1; node < 4; ++node) {
    EXPECT_EQ(result.TopLeft[node].Y, result.TopLeft[0].Y);
    EXPECT_GE(result.TopLeft[node].X, result.TopLeft[node - 1].X + 900 + 15);
  }
  EXPECT_TRUE(std::all_of(result.Bends.begin(), result.Bends.end(), [](const auto& bends) { return bends.empty(); }));
}

TEST(LayeredLayout, EdgeBackAlongAChainGoesRoundIt) {
  const LayoutResult result = ArrangeInLayers(Graph(4, {{0, 1}, {1, 2}, {2, 3}, {3, 0}}, 0));
  ASSERT_GE(result.Bends[3].size(), 2U);
  EXPECT_GT(result.Bends[3].front().X, result.Bends[3].back().X);
}

TEST(LayeredLayout, BranchesOfAForkStandEvenlyAboutIt) {
  const LayoutResult result = ArrangeInLayers(Graph(6, {{0, 1}, {1, 2}, {1, 3}, {2, 4}, {3, 4}, {4, 5}}, 0));
  constexpr float kPixel = 15;
  EXPECT_NEAR(result.TopLeft[2].Y + result.TopLeft[3].Y, 2 * result.TopLeft[1].Y, kPixel);
  EXPECT_FLOAT_EQ(result.TopLeft[4].Y, result.TopLeft[1].Y);
}

TEST(LayeredLayout, ComponentsStandOneBelowTheOtherTheStartOnTop) {
  const LayoutResult result = ArrangeInLayers(Graph(6, {{0, 1}, {0, 2}, {4, 5}}, 4));
  EXPECT_EQ(result.TopLeft[4].Y, 0);
  EXPECT_GE(std::min(result.TopLeft[1].Y, result.TopLeft[2].Y), 600);
  EXPECT_GE(result.TopLeft[3].Y, std::max(result.TopLeft[1].Y, result.TopLeft[2].Y) + 600);
}

TEST(LayeredLayout, NumbersThatAreNoNodeAreRefused) {
  EXPECT_THROW(ArrangeInLayers(Graph(2, {{0, 2}})), std::out_of_range);
  EXPECT_THROW(ArrangeInLayers(Graph(2, {{-1, 0}})), std::out_of_range);
  EXPECT_THROW(ArrangeInLayers(Graph(0, {}, 0)), std::out_of_range);
  EXPECT_TRUE(ArrangeInLayers(Graph(0, {})).TopLeft.empty());
}

TEST(LayeredLayout, LongChainsAndWideFansNeedNoStack) {
  constexpr std::int32_t kNodes = 100'000;
  constexpr std::int32_t kLeaves = 20'000;
  std::vector<LayoutEdge> chain;
  std::vector<LayoutEdge> fan;
  for (std::int32_t node = 1; node < kNodes; ++node) {
    chain.push_back({node - 1, node});
    if (node < kLeaves) fan.push_back({0, node});
  }
  chain.push_back({kNodes - 1, 0});
  EXPECT_EQ(ArrangeInLayers(Graph(kNodes, chain, 0)).TopLeft[1].Y, ArrangeInLayers(Graph(2, {{0, 1}})).TopLeft[1].Y);
  const LayoutResult result = ArrangeInLayers(Graph(kLeaves, fan, 0));
  std::vector<float> rows;
  for (std::size_t node = 1; node < result.TopLeft.size(); ++node) rows.push_back(result.TopLeft[node].Y);
  std::sort(rows.begin(), rows.end());
  for (std::size_t at = 1; at < rows.size(); ++at) ASSERT_GE(rows[at] - rows[at - 1], 600);
}

TEST(DealOutToLayers, JointsDoNotExplode) {
  std::vector<LayoutEdge> edges;
  for (std::int32_t node = 1; node < 20'000; ++node) {
    edges.push_back({node - 1, node});
    edges.push_back({0, node});
  }
  const LayerGraph graph = DealOutToLayers(20'000, edges, 0);
  EXPECT_LE(graph.LayerOf.size(), 20'000U + 1'000'000U);
  EXPECT_GT(graph.LayerOf.size(), 100'000U);
}

std::int64_t CrossingsOfPairs(const LayerGraph& pobjGraph) {
  std::int64_t crossings = 0;
  for (std::size_t layer = 0; layer + 1 < pobjGraph.Layers.size(); ++layer) {
    const auto& after = pobjGraph.Layers[layer + 1];
    std::vector<std::pair<std::size_t, std::ptrdiff_t>> ends;
    for (std::size_t at = 0; at < pobjGraph.Layers[layer].size(); ++at) {
      for (const VertexIndex right : pobjGraph.Right[static_cast<std::size_t>(pobjGraph.Layers[layer][at])]) {
        ends.emplace_back(at, std::find(after.begin(), after.end(), right) - after.begin());
      }
    }
    for (const auto& first : ends) {
      for (const auto& second : ends) crossings += first.first < second.first && first.second > second.second;
    }
  }
  return crossings;
}

TEST(ReduceCrossings, NeverAddsAnyAndCountsThemAll) {
  for (unsigned seed = 0; seed < 60; ++seed) {
    const LayoutGraph graph = RandomGraph(seed);
    LayerGraph layers = DealOutToLayers(static_cast<std::int32_t>(graph.Nodes.size()), graph.Edges, graph.Start);
    const std::int64_t before = CrossingsOfPairs(layers);
    EXPECT_EQ(CountCrossings(layers), before);
    ReduceCrossings(layers);
    EXPECT_LE(CrossingsOfPairs(layers), before);
  }
}

TEST(ReduceCrossings, TangledLadderIsUntangled) {
  constexpr std::int32_t kRungs = 12;
  std::vector<LayoutEdge> edges;
  for (std::int32_t rung = 0; rung < kRungs; ++rung) {
    const std::int32_t tangled = rung * 5 % kRungs;
    edges.push_back({0, 1 + rung});
    edges.push_back({1 + rung, 1 + kRungs + tangled});
    edges.push_back({1 + kRungs + tangled, 1 + 2 * kRungs});
  }
  LayerGraph layers = DealOutToLayers(2 + 2 * kRungs, edges, 0);
  for (auto& layer : layers.Layers) std::sort(layer.begin(), layer.end());
  ASSERT_GT(CountCrossings(layers), 0);
  ReduceCrossings(layers);
  EXPECT_EQ(CountCrossings(layers), 0);
}

}  // namespace

}  // namespace vantrel

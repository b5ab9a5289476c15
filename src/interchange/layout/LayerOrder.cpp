#include "interchange/layout/LayerOrder.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "interchange/layout/At.h"

namespace vantrel {

namespace {

using Order = std::vector<std::vector<VertexIndex>>;

/// Where each vertex stands in its layer.
std::vector<std::int32_t> Places(const LayerGraph& pobjGraph) {
  std::vector<std::int32_t> places(pobjGraph.LayerOf.size());
  for (const auto& layer : pobjGraph.Layers) {
    for (std::size_t at = 0; at < layer.size(); ++at) places[At(layer[at])] = static_cast<std::int32_t>(at);
  }
  return places;
}

std::vector<std::int32_t> SortedPlaces(const std::vector<VertexIndex>& pcolVertices, const std::vector<std::int32_t>& pcolPlaces) {
  std::vector<std::int32_t> sorted;
  sorted.reserve(pcolVertices.size());
  for (const VertexIndex vertex : pcolVertices) sorted.push_back(pcolPlaces[At(vertex)]);
  std::sort(sorted.begin(), sorted.end());
  return sorted;
}

/// Counts inversions with a binary indexed tree (Barth, Jünger, Mutzel: Simple and Efficient Bilayer Cross Counting, 2002).
class CrossingCounter {
 public:
  explicit CrossingCounter(std::size_t plngSize) : mSums(plngSize + 1, 0) {}

  std::int64_t Add(const std::vector<std::int32_t>& pcolEnds) {
    std::int64_t crossings = 0;
    for (const std::int32_t end : pcolEnds) crossings += mTotal - UpTo(At(end) + 1);
    for (const std::int32_t end : pcolEnds) Insert(At(end) + 1);
    return crossings;
  }

 private:
  std::int64_t UpTo(std::size_t plngAt) const {
    std::int64_t sum = 0;
    for (; plngAt > 0; plngAt &= plngAt - 1) sum += mSums[plngAt];
    return sum;
  }

  void Insert(std::size_t plngAt) {
    ++mTotal;
    for (; plngAt < mSums.size(); plngAt += plngAt & (~plngAt + 1)) ++mSums[plngAt];
  }

  std::vector<std::int64_t> mSums;
  std::int64_t mTotal = 0;
};

class Sweeper {
 public:
  explicit Sweeper(LayerGraph& pobjGraph) : mGraph(pobjGraph), mPlaces(Places(pobjGraph)) {
    for (const auto& neighbours : mGraph.Right) mSize += neighbours.size() + 1;
  }

  void Run() {
    Order best = mGraph.Layers;
    std::int64_t fewest = CountCrossings(mGraph);
    const int sweeps = static_cast<int>(std::clamp<std::size_t>(1'500'000 / (mSize + 1), 3, 24));
    for (int sweep = 0, useless = 0; sweep < sweeps && fewest > 0 && useless < 6; ++sweep, ++useless) {
      Sweep(sweep % 2 == 0, sweep / 2 % 2 == 0);
      if (mSize < 10'000) Transpose();
      const std::int64_t crossings = CountCrossings(mGraph);
      if (crossings >= fewest) continue;
      fewest = crossings;
      best = mGraph.Layers;
      useless = -1;
    }
    mGraph.Layers = std::move(best);
  }

 private:
  void Sweep(bool pblnRightwards, bool pblnBarycentre) {
    const auto& neighbours = pblnRightwards ? mGraph.Left : mGraph.Right;
    const std::size_t count = mGraph.Layers.size();
    for (std::size_t step = 1; step < count; ++step) {
      SortLayer(mGraph.Layers[pblnRightwards ? step : count - 1 - step], neighbours, pblnBarycentre);
    }
  }

  void SortLayer(std::vector<VertexIndex>& pcolLayer, const Order& pcolNeighbours, bool pblnBarycentre) {
    std::vector<std::pair<double, VertexIndex>> keyed;
    keyed.reserve(pcolLayer.size());
    for (const VertexIndex vertex : pcolLayer) {
      const auto& neighbours = pcolNeighbours[At(vertex)];
      const double middle = neighbours.empty() ? mPlaces[At(vertex)] : Middle(neighbours, pblnBarycentre);
      keyed.emplace_back(middle, vertex);
    }
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto& first, const auto& second) { return first.first < second.first; });
    for (std::size_t at = 0; at < keyed.size(); ++at) Put(pcolLayer, at, keyed[at].second);
  }

  double Middle(const std::vector<VertexIndex>& pcolNeighbours, bool pblnBarycentre) const {
    if (pblnBarycentre || pcolNeighbours.size() < 3) {
      double sum = 0;
      for (const VertexIndex neighbour : pcolNeighbours) sum += mPlaces[At(neighbour)];
      return sum / static_cast<double>(pcolNeighbours.size());
    }
    const std::vector<std::int32_t> places = SortedPlaces(pcolNeighbours, mPlaces);
    const std::size_t middle = places.size() / 2;
    return places.size() % 2 == 1 ? places[middle] : (places[middle - 1] + places[middle]) / 2.0;
  }

  void Put(std::vector<VertexIndex>& pcolLayer, std::size_t plngAt, VertexIndex plngVertex) {
    pcolLayer[plngAt] = plngVertex;
    mPlaces[At(plngVertex)] = static_cast<std::int32_t>(plngAt);
  }

  void Transpose() {
    bool improved = true;
    for (int round = 0; improved && round < 8; ++round) {
      improved = false;
      for (auto& layer : mGraph.Layers) improved = TransposeLayer(layer) || improved;
    }
  }

  bool TransposeLayer(std::vector<VertexIndex>& pcolLayer) {
    bool improved = false;
    for (std::size_t at = 0; at + 1 < pcolLayer.size(); ++at) {
      const VertexIndex upper = pcolLayer[at];
      const VertexIndex lower = pcolLayer[at + 1];
      if (Gain(upper, lower) <= 0) continue;
      Put(pcolLayer, at, lower);
      Put(pcolLayer, at + 1, upper);
      improved = true;
    }
    return improved;
  }

  /// The number of crossings that exchanging the two removes.
  std::int64_t Gain(VertexIndex plngUpper, VertexIndex plngLower) const {
    std::int64_t gain = 0;
    for (const Order* neighbours : {&mGraph.Left, &mGraph.Right}) {
      const std::vector<std::int32_t> upper = SortedPlaces((*neighbours)[At(plngUpper)], mPlaces);
      const std::vector<std::int32_t> lower = SortedPlaces((*neighbours)[At(plngLower)], mPlaces);
      gain += PairsAbove(lower, upper) - PairsAbove(upper, lower);
    }
    return gain;
  }

  /// Pairs with the first one's end above the second's. Both lists are sorted.
  static std::int64_t PairsAbove(const std::vector<std::int32_t>& pcolFirst, const std::vector<std::int32_t>& pcolSecond) {
    std::int64_t pairs = 0;
    std::size_t above = 0;
    for (const std::int32_t end : pcolSecond) {
      while (above < pcolFirst.size() && pcolFirst[above] < end) ++above;
      pairs += static_cast<std::int64_t>(above);
    }
    return pairs;
  }

  LayerGraph& mGraph;
  std::vector<std::int32_t> mPlaces;
  std::size_t mSize = 0;
};

}  // namespace

std::int64_t CountCrossings(const LayerGraph& pobjGraph) {
  const std::vector<std::int32_t> places = Places(pobjGraph);
  std::int64_t crossings = 0;
  for (std::size_t at = 0; at + 1 < pobjGraph.Layers.size(); ++at) {
    CrossingCounter counter(pobjGraph.Layers[at + 1].size());
    for (const VertexIndex vertex : pobjGraph.Layers[at]) {
      crossings += counter.Add(SortedPlaces(pobjGraph.Right[At(vertex)], places));
    }
  }
  return crossings;
}

void ReduceCrossings(LayerGraph& pobjGraph) { Sweeper(pobjGraph).Run(); }

}  // namespace vantrel

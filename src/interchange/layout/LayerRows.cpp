#include "interchange/layout/LayerRows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <unordered_set>
#include <utility>

#include "interchange/layout/At.h"
#include "interchange/layout/LayerBlocks.h"
#include "interchange/layout/LayerDistances.h"

namespace vantrel {

namespace {

using Order = std::vector<std::vector<VertexIndex>>;

/// Edges that cross a straight run between two joints and so must not be straight themselves ("type 1 conflicts").
class Conflicts {
 public:
  Conflicts(const LayerGraph& pobjGraph, const std::vector<std::int32_t>& pcolPlaces) : mGraph(pobjGraph), mPlaces(pcolPlaces) {
    for (std::size_t at = 1; at < mGraph.Layers.size(); ++at) Mark(mGraph.Layers[at - 1], mGraph.Layers[at]);
  }

  bool Has(VertexIndex plngFirst, VertexIndex plngSecond) const { return !mMarked.empty() && mMarked.contains(Key(plngFirst, plngSecond)); }

 private:
  static std::uint64_t Key(VertexIndex plngFirst, VertexIndex plngSecond) {
    const auto [low, high] = std::minmax(plngFirst, plngSecond);
    return static_cast<std::uint64_t>(low) << 32U | static_cast<std::uint64_t>(high);
  }

  /// The place of the joint before, when a vertex is the right end of a run between joints; else -1.
  std::int32_t InnerEnd(VertexIndex plngVertex) const {
    if (!mGraph.IsJoint(plngVertex)) return -1;
    const VertexIndex before = mGraph.Left[At(plngVertex)].front();
    return mGraph.IsJoint(before) ? mPlaces[At(before)] : -1;
  }

  void Mark(const std::vector<VertexIndex>& pcolLeft, const std::vector<VertexIndex>& pcolRight) {
    std::int32_t first = 0;
    std::size_t scanned = 0;
    for (std::size_t at = 0; at < pcolRight.size(); ++at) {
      const std::int32_t inner = InnerEnd(pcolRight[at]);
      const bool ends = at + 1 == pcolRight.size();
      if (inner < 0 && !ends) continue;
      const std::int32_t last = inner < 0 ? static_cast<std::int32_t>(pcolLeft.size()) - 1 : inner;
      for (; scanned <= at; ++scanned) MarkOutside(pcolRight[scanned], first, last);
      first = last;
    }
  }

  void MarkOutside(VertexIndex plngVertex, std::int32_t plngFirst, std::int32_t plngLast) {
    for (const VertexIndex before : mGraph.Left[At(plngVertex)]) {
      const std::int32_t place = mPlaces[At(before)];
      const bool inner = mGraph.IsJoint(before) && mGraph.IsJoint(plngVertex);
      if (!inner && (place < plngFirst || place > plngLast)) mMarked.insert(Key(before, plngVertex));
    }
  }

  const LayerGraph& mGraph;
  const std::vector<std::int32_t>& mPlaces;
  std::unordered_set<std::uint64_t> mMarked;
};

/// One of the four drawings that are averaged: vertices lean on their neighbours to the left or to the right, and upwards or downwards.
class Alignment {
 public:
  Alignment(const LayerGraph& pobjGraph, const Conflicts& pobjConflicts, bool pblnToLeft, bool pblnUpwards)
      : mGraph(pobjGraph), mConflicts(pobjConflicts), mUpwards(pblnUpwards), mPlaces(pobjGraph.LayerOf.size()) {
    mBlocks.Layers = pobjGraph.Layers;
    mBlocks.Root.resize(mPlaces.size());
    std::iota(mBlocks.Root.begin(), mBlocks.Root.end(), 0);
    if (!pblnToLeft) std::reverse(mBlocks.Layers.begin(), mBlocks.Layers.end());
    for (auto& layer : mBlocks.Layers) {
      if (!pblnUpwards) std::reverse(layer.begin(), layer.end());
      for (std::size_t at = 0; at < layer.size(); ++at) mPlaces[At(layer[at])] = static_cast<std::int32_t>(at);
    }
    for (const auto& layer : mBlocks.Layers) AlignLayer(layer, pblnToLeft ? pobjGraph.Left : pobjGraph.Right);
  }

  /// y of each vertex.
  std::vector<double> Rows(const LayerDistances& pobjDistances) const {
    std::vector<double> rows = CompactBlocks(mGraph, mBlocks, pobjDistances);
    if (mUpwards) return rows;
    for (double& row : rows) row = -row;
    return rows;
  }

 private:
  void AlignLayer(const std::vector<VertexIndex>& pcolLayer, const Order& pcolNeighbours) {
    std::int32_t taken = -1;
    for (const VertexIndex vertex : pcolLayer) {
      std::vector<VertexIndex> neighbours = pcolNeighbours[At(vertex)];
      if (neighbours.empty()) continue;
      std::sort(neighbours.begin(), neighbours.end(),
                [this](VertexIndex first, VertexIndex second) { return mPlaces[At(first)] < mPlaces[At(second)]; });
      VertexIndex& root = mBlocks.Root[At(vertex)];
      for (std::size_t at = (neighbours.size() - 1) / 2; at <= neighbours.size() / 2; ++at) {
        const VertexIndex middle = neighbours[at];
        if (root != vertex || mPlaces[At(middle)] <= taken || mConflicts.Has(middle, vertex)) continue;
        root = mBlocks.Root[At(middle)];
        taken = mPlaces[At(middle)];
      }
    }
  }

  const LayerGraph& mGraph;
  const Conflicts& mConflicts;
  bool mUpwards;
  std::vector<std::int32_t> mPlaces;
  LayerBlocks mBlocks;
};

using Drawings = std::array<std::vector<double>, 4>;

/// Aligns the drawings with the narrowest one: those that lean upwards at their upper edges, the others at their lower edges.
void LineUp(Drawings& pcolDrawings) {
  std::array<std::pair<double, double>, 4> bounds;
  std::size_t narrowest = 0;
  for (std::size_t at = 0; at < bounds.size(); ++at) {
    const auto [low, high] = std::minmax_element(pcolDrawings[at].begin(), pcolDrawings[at].end());
    bounds[at] = {*low, *high};
    if (*high - *low < bounds[narrowest].second - bounds[narrowest].first) narrowest = at;
  }
  for (std::size_t at = 0; at < bounds.size(); ++at) {
    const bool upwards = at < 2;
    const double shift = upwards ? bounds[narrowest].first - bounds[at].first : bounds[narrowest].second - bounds[at].second;
    for (double& row : pcolDrawings[at]) row += shift;
  }
}

}  // namespace

std::vector<double> AssignRows(const LayerGraph& pobjGraph, const std::vector<double>& pcolHeights, double psngGap) {
  std::vector<std::int32_t> places(pobjGraph.LayerOf.size());
  if (places.empty()) return {};
  for (const auto& layer : pobjGraph.Layers) {
    for (std::size_t at = 0; at < layer.size(); ++at) places[At(layer[at])] = static_cast<std::int32_t>(at);
  }
  const Conflicts conflicts(pobjGraph, places);
  const LayerDistances distances(pobjGraph, pcolHeights, psngGap);
  const auto rowsOf = [&](bool toLeft, bool upwards) { return Alignment(pobjGraph, conflicts, toLeft, upwards).Rows(distances); };
  Drawings drawings{rowsOf(true, true), rowsOf(false, true), rowsOf(true, false), rowsOf(false, false)};
  LineUp(drawings);

  std::vector<double> rows(places.size());
  for (std::size_t at = 0; at < rows.size(); ++at) {
    std::array<double, 4> four{drawings[0][at], drawings[1][at], drawings[2][at], drawings[3][at]};
    std::sort(four.begin(), four.end());
    rows[at] = std::round((four[1] + four[2]) / 2 / LayerDistances::kPixel) * LayerDistances::kPixel;
  }
  return rows;
}

}  // namespace vantrel

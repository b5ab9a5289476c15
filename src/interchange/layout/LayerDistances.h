#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

#include "interchange/layout/LayerGraph.h"

namespace vantrel {

/// The distance that the centres of two neighbours in a layer keep: whole pixels of 15 twips, so that rounding a row keeps it too.
class LayerDistances {
 public:
  /// pcolHeights holds the height of every vertex, psngGap the room between two nodes, of which joints keep half; all in twips. Graph and
  /// heights must outlive this.
  LayerDistances(const LayerGraph& pobjGraph, const std::vector<double>& pcolHeights, double psngGap)
      : mGraph(pobjGraph), mHeights(pcolHeights), mGap(psngGap) {}

  double Between(VertexIndex plngUpper, VertexIndex plngLower) const {
    const double gap = mGraph.IsJoint(plngUpper) || mGraph.IsJoint(plngLower) ? mGap / 2 : mGap;
    return std::ceil(((Height(plngUpper) + Height(plngLower)) / 2 + gap) / kPixel) * kPixel;
  }

  static constexpr double kPixel = 15;

 private:
  double Height(VertexIndex plngVertex) const { return mHeights[static_cast<std::size_t>(plngVertex)]; }

  const LayerGraph& mGraph;
  const std::vector<double>& mHeights;
  double mGap;
};

}  // namespace vantrel

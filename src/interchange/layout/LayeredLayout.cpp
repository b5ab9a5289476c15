#include "interchange/layout/LayeredLayout.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "interchange/BendPoints.h"
#include "interchange/layout/At.h"
#include "interchange/layout/GraphComponents.h"
#include "interchange/layout/LayerDistances.h"
#include "interchange/layout/LayerGraph.h"
#include "interchange/layout/LayerOrder.h"
#include "interchange/layout/LayerRows.h"

namespace vantrel {

namespace {

constexpr double kPixel = LayerDistances::kPixel;
constexpr double kColumnGap = 40 * kPixel;
constexpr double kRowGap = 15 * kPixel;
constexpr double kComponentGap = 40 * kPixel;

struct Column {
  double Left = 0;
  double Width = 0;
};

/// Draws one connected component of a graph into the result, below the ones before.
class ComponentDrawing {
 public:
  ComponentDrawing(const LayoutGraph& pobjGraph, const GraphComponent& pobjComponent)
      : mWhole(pobjGraph),
        mComponent(pobjComponent),
        mGraph(DealOutToLayers(static_cast<std::int32_t>(pobjComponent.Nodes.size()), pobjComponent.Edges, pobjComponent.Start)) {
    ReduceCrossings(mGraph);
    std::vector<double> heights(mGraph.LayerOf.size(), 0);
    for (std::size_t node = 0; node < mComponent.Nodes.size(); ++node) heights[node] = Size(node).Height;
    mRows = AssignRows(mGraph, heights, kRowGap);
    PlaceColumns();
  }

  /// Returns the drawing's height.
  double DrawAt(double psngTop, LayoutResult& pobjResult) const {
    double highest = mRows.front();
    double lowest = highest;
    for (std::size_t vertex = 0; vertex < mRows.size(); ++vertex) {
      highest = std::min(highest, mRows[vertex] - HalfHeight(vertex));
      lowest = std::max(lowest, mRows[vertex] + HalfHeight(vertex));
    }
    DrawNodes(psngTop - highest, pobjResult);
    DrawEdges(psngTop - highest, pobjResult);
    return lowest - highest;
  }

 private:
  const LayoutSize& Size(std::size_t plngNode) const { return mWhole.Nodes[At(mComponent.Nodes[plngNode])]; }

  double HalfHeight(std::size_t plngVertex) const { return plngVertex < mComponent.Nodes.size() ? Size(plngVertex).Height / 2.0 : 0; }

  const Column& ColumnOf(std::size_t plngVertex) const { return mColumns[At(mGraph.LayerOf[plngVertex])]; }

  void PlaceColumns() {
    mColumns.resize(mGraph.Layers.size());
    for (std::size_t node = 0; node < mComponent.Nodes.size(); ++node) {
      Column& column = mColumns[At(mGraph.LayerOf[node])];
      column.Width = std::max<double>(column.Width, Size(node).Width);
    }
    double left = 0;
    for (Column& column : mColumns) {
      column.Left = left;
      left += column.Width + kColumnGap;
    }
  }

  void DrawNodes(double psngDown, LayoutResult& pobjResult) const {
    for (std::size_t node = 0; node < mComponent.Nodes.size(); ++node) {
      const Column& column = ColumnOf(node);
      pobjResult.TopLeft[At(mComponent.Nodes[node])] = {static_cast<float>(column.Left + (column.Width - Size(node).Width) / 2),
                                                        static_cast<float>(mRows[node] - HalfHeight(node) + psngDown)};
    }
  }

  void DrawEdges(double psngDown, LayoutResult& pobjResult) const {
    for (std::size_t edge = 0; edge < mComponent.Edges.size(); ++edge) {
      if (mGraph.JointsOf[edge].empty()) continue;
      const std::vector<PlanePoint> line = SimplifyLine(Line(edge), kPixel);
      std::vector<LayoutPoint>& bends = pobjResult.Bends[mComponent.EdgeNumbers[edge]];
      for (std::size_t at = 1; at + 1 < line.size(); ++at) {
        bends.push_back({static_cast<float>(line[at].X), static_cast<float>(line[at].Y + psngDown)});
      }
    }
  }

  /// From centre to centre, level through the columns of the joints.
  std::vector<PlanePoint> Line(std::size_t plngEdge) const {
    const auto [from, to] = mComponent.Edges[plngEdge];
    std::vector<PlanePoint> line{Centre(from)};
    const bool leftwards = mGraph.LayerOf[At(from)] > mGraph.LayerOf[At(to)];
    for (const VertexIndex joint : mGraph.JointsOf[plngEdge]) {
      const Column& column = ColumnOf(At(joint));
      PlanePoint enter{column.Left, mRows[At(joint)]};
      PlanePoint leave{column.Left + column.Width, mRows[At(joint)]};
      if (leftwards) std::swap(enter, leave);
      line.push_back(enter);
      line.push_back(leave);
    }
    line.push_back(Centre(to));
    return line;
  }

  PlanePoint Centre(VertexIndex plngNode) const {
    const Column& column = ColumnOf(At(plngNode));
    return {column.Left + column.Width / 2, mRows[At(plngNode)]};
  }

  const LayoutGraph& mWhole;
  const GraphComponent& mComponent;
  LayerGraph mGraph;
  std::vector<double> mRows;
  std::vector<Column> mColumns;
};

}  // namespace

LayoutResult ArrangeInLayers(const LayoutGraph& pobjGraph) {
  LayoutResult result;
  result.TopLeft.resize(pobjGraph.Nodes.size());
  result.Bends.resize(pobjGraph.Edges.size());
  double top = 0;
  for (const GraphComponent& component : ComponentsOf(pobjGraph)) {
    top += ComponentDrawing(pobjGraph, component).DrawAt(top, result) + kComponentGap;
  }
  return result;
}

}  // namespace vantrel

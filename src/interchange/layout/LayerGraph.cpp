#include "interchange/layout/LayerGraph.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace vantrel {

namespace {

using NodeLists = std::vector<std::vector<std::int32_t>>;

/// Neighbour lists and degrees of the edges as the layers see them: without loops and cycles.
struct Directed {
  NodeLists Out, In;
};

/// The edges that a depth-first walk finds leading back, and those into the start. Turned round they leave no cycle.
class CycleBreaker {
 public:
  CycleBreaker(std::int32_t plngNodeCount, const std::vector<LayoutEdge>& pcolEdges, std::optional<std::int32_t> pobjStart)
      : mEdges(pcolEdges),
        mOut(static_cast<std::size_t>(plngNodeCount)),
        mState(mOut.size(), State::New),
        mTurned(pcolEdges.size(), false) {
    std::vector<bool> entered(mOut.size(), false);
    for (std::size_t edge = 0; edge < pcolEdges.size(); ++edge) {
      const auto [from, to] = pcolEdges[edge];
      if (from == to) continue;
      if (pobjStart == to) {
        mTurned[edge] = true;
        continue;
      }
      mOut[Index(from)].push_back(edge);
      entered[Index(to)] = true;
    }
    if (pobjStart) Walk(*pobjStart);
    for (std::int32_t node = 0; node < plngNodeCount; ++node) {
      if (!entered[Index(node)]) Walk(node);
    }
    for (std::int32_t node = 0; node < plngNodeCount; ++node) Walk(node);
  }

  const std::vector<bool>& Turned() const { return mTurned; }

 private:
  enum class State : std::uint8_t { New, OnTheWay, Done };

  static std::size_t Index(std::int32_t plngNode) { return static_cast<std::size_t>(plngNode); }

  void Walk(std::int32_t plngRoot) {
    if (mState[Index(plngRoot)] != State::New) return;
    std::vector<std::pair<std::int32_t, std::size_t>> way{{plngRoot, 0}};
    mState[Index(plngRoot)] = State::OnTheWay;
    while (!way.empty()) {
      auto& [node, next] = way.back();
      if (next == mOut[Index(node)].size()) {
        mState[Index(node)] = State::Done;
        way.pop_back();
        continue;
      }
      const std::size_t edge = mOut[Index(node)][next++];
      const std::int32_t target = mEdges[edge].To;
      State& state = mState[Index(target)];
      if (state == State::OnTheWay) mTurned[edge] = true;
      if (state != State::New) continue;
      state = State::OnTheWay;
      way.emplace_back(target, 0);
    }
  }

  const std::vector<LayoutEdge>& mEdges;
  std::vector<std::vector<std::size_t>> mOut;
  std::vector<State> mState;
  std::vector<bool> mTurned;
};

std::vector<std::int32_t> TopologicalOrder(const Directed& pobjGraph) {
  std::vector<std::size_t> waiting;
  std::vector<std::int32_t> order;
  for (std::size_t node = 0; node < pobjGraph.In.size(); ++node) {
    waiting.push_back(pobjGraph.In[node].size());
    if (waiting.back() == 0) order.push_back(static_cast<std::int32_t>(node));
  }
  for (std::size_t at = 0; at < order.size(); ++at) {
    for (const std::int32_t target : pobjGraph.Out[static_cast<std::size_t>(order[at])]) {
      if (--waiting[static_cast<std::size_t>(target)] == 0) order.push_back(target);
    }
  }
  return order;
}

std::vector<LayerIndex> Layering(const Directed& pobjGraph, std::optional<std::int32_t> pobjStart) {
  const std::vector<std::int32_t> order = TopologicalOrder(pobjGraph);
  std::vector<LayerIndex> layers(pobjGraph.In.size(), 0);
  const auto layer = [&layers](std::int32_t node) -> LayerIndex& { return layers[static_cast<std::size_t>(node)]; };
  for (const std::int32_t node : order) {
    for (const std::int32_t target : pobjGraph.Out[static_cast<std::size_t>(node)]) {
      layer(target) = std::max(layer(target), layer(node) + 1);
    }
  }
  for (auto at = order.rbegin(); at != order.rend(); ++at) {
    const auto& targets = pobjGraph.Out[static_cast<std::size_t>(*at)];
    if (pobjStart == *at || targets.size() <= pobjGraph.In[static_cast<std::size_t>(*at)].size()) continue;
    LayerIndex nearest = std::numeric_limits<LayerIndex>::max();
    for (const std::int32_t target : targets) nearest = std::min(nearest, layer(target));
    layer(*at) = nearest - 1;
  }
  const LayerIndex first = layers.empty() ? 0 : *std::min_element(layers.begin(), layers.end());
  for (LayerIndex& value : layers) value -= first;
  return layers;
}

/// The longest edge that still gets joints.
LayerIndex LongestJointedSpan(const std::vector<LayerIndex>& pcolSpans, std::size_t plngNodeCount) {
  const std::size_t limit = std::min<std::size_t>(4 * (plngNodeCount + pcolSpans.size()) + 20'000, 1'000'000);
  std::vector<LayerIndex> spans = pcolSpans;
  std::sort(spans.begin(), spans.end());
  std::size_t joints = 0;
  for (std::size_t at = 0; at < spans.size(); ++at) {
    joints += static_cast<std::size_t>(std::max(spans[at] - 1, 0));
    if (joints > limit) return spans[at] - 1;
  }
  return std::numeric_limits<LayerIndex>::max();
}

class LayerGraphBuilder {
 public:
  LayerGraphBuilder(std::int32_t plngNodeCount, const std::vector<LayoutEdge>& pcolEdges, std::optional<std::int32_t> pobjStart)
      : mEdges(pcolEdges), mTurned(CycleBreaker(plngNodeCount, pcolEdges, pobjStart).Turned()) {
    const auto nodes = static_cast<std::size_t>(plngNodeCount);
    Directed directed{NodeLists(nodes), NodeLists(nodes)};
    for (std::size_t edge = 0; edge < mEdges.size(); ++edge) {
      const auto [left, right] = Ends(edge);
      if (left == right) continue;
      directed.Out[static_cast<std::size_t>(left)].push_back(right);
      directed.In[static_cast<std::size_t>(right)].push_back(left);
    }
    mResult.NodeCount = plngNodeCount;
    mResult.LayerOf = Layering(directed, pobjStart);
    mResult.Left.resize(nodes);
    mResult.Right.resize(nodes);
  }

  LayerGraph Build() {
    mResult.JointsOf.resize(mEdges.size());
    std::vector<LayerIndex> spans;
    for (std::size_t edge = 0; edge < mEdges.size(); ++edge) spans.push_back(Span(edge));
    const LayerIndex longest = LongestJointedSpan(spans, static_cast<std::size_t>(mResult.NodeCount));
    for (std::size_t edge = 0; edge < mEdges.size(); ++edge) {
      if (spans[edge] > 0 && spans[edge] <= longest) Connect(edge);
    }
    FillLayers();
    return std::move(mResult);
  }

 private:
  LayoutEdge Ends(std::size_t plngEdge) const {
    const auto [from, to] = mEdges[plngEdge];
    return mTurned[plngEdge] ? LayoutEdge{to, from} : LayoutEdge{from, to};
  }

  LayerIndex& Layer(VertexIndex plngVertex) { return mResult.LayerOf[static_cast<std::size_t>(plngVertex)]; }

  LayerIndex Span(std::size_t plngEdge) {
    const auto [left, right] = Ends(plngEdge);
    return Layer(right) - Layer(left);
  }

  void Connect(std::size_t plngEdge) {
    const auto [left, right] = Ends(plngEdge);
    std::vector<VertexIndex>& joints = mResult.JointsOf[plngEdge];
    VertexIndex last = left;
    for (LayerIndex layer = Layer(left) + 1; layer < Layer(right); ++layer) {
      const auto joint = static_cast<VertexIndex>(mResult.LayerOf.size());
      mResult.LayerOf.push_back(layer);
      mResult.Left.emplace_back();
      mResult.Right.emplace_back();
      joints.push_back(joint);
      Link(last, joint);
      last = joint;
    }
    Link(last, right);
    if (mTurned[plngEdge]) std::reverse(joints.begin(), joints.end());
  }

  void Link(VertexIndex plngLeft, VertexIndex plngRight) {
    mResult.Right[static_cast<std::size_t>(plngLeft)].push_back(plngRight);
    mResult.Left[static_cast<std::size_t>(plngRight)].push_back(plngLeft);
  }

  /// A depth-first walk puts connected nodes next to each other, which leaves less to order.
  void FillLayers() {
    const auto last = std::max_element(mResult.LayerOf.begin(), mResult.LayerOf.end());
    if (last == mResult.LayerOf.end()) return;
    mResult.Layers.resize(static_cast<std::size_t>(*last) + 1);
    std::vector<bool> seen(mResult.LayerOf.size(), false);
    std::vector<VertexIndex> way;
    for (const VertexIndex root : ByLayer()) {
      way.assign(1, root);
      while (!way.empty()) {
        const VertexIndex vertex = way.back();
        way.pop_back();
        if (seen[static_cast<std::size_t>(vertex)]) continue;
        seen[static_cast<std::size_t>(vertex)] = true;
        mResult.Layers[static_cast<std::size_t>(Layer(vertex))].push_back(vertex);
        const auto& next = mResult.Right[static_cast<std::size_t>(vertex)];
        way.insert(way.end(), next.rbegin(), next.rend());
      }
    }
  }

  std::vector<VertexIndex> ByLayer() const {
    std::vector<VertexIndex> vertices(mResult.LayerOf.size());
    for (std::size_t at = 0; at < vertices.size(); ++at) vertices[at] = static_cast<VertexIndex>(at);
    const auto layer = [this](VertexIndex vertex) { return mResult.LayerOf[static_cast<std::size_t>(vertex)]; };
    std::stable_sort(vertices.begin(), vertices.end(), [&](VertexIndex first, VertexIndex second) { return layer(first) < layer(second); });
    return vertices;
  }

  const std::vector<LayoutEdge>& mEdges;
  std::vector<bool> mTurned;
  LayerGraph mResult;
};

}  // namespace

LayerGraph DealOutToLayers(std::int32_t plngNodeCount, const std::vector<LayoutEdge>& pcolEdges, std::optional<std::int32_t> pobjStart) {
  return LayerGraphBuilder(plngNodeCount, pcolEdges, pobjStart).Build();
}

}  // namespace vantrel

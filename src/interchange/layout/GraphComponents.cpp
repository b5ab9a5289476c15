#include "interchange/layout/GraphComponents.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

#include "interchange/layout/At.h"

namespace vantrel {

namespace {

/// Disjoint sets; the lowest node stands for its set.
class Sets {
 public:
  explicit Sets(std::size_t plngCount) : mParents(plngCount) { std::iota(mParents.begin(), mParents.end(), 0); }

  std::int32_t Find(std::int32_t plngNode) {
    while (mParents[At(plngNode)] != plngNode) {
      std::int32_t& parent = mParents[At(plngNode)];
      parent = mParents[At(parent)];
      plngNode = parent;
    }
    return plngNode;
  }

  void Join(std::int32_t plngFirst, std::int32_t plngSecond) {
    const auto [low, high] = std::minmax({Find(plngFirst), Find(plngSecond)});
    mParents[At(high)] = low;
  }

 private:
  std::vector<std::int32_t> mParents;
};

void CheckNumbers(const LayoutGraph& pobjGraph) {
  const auto check = [&](std::int32_t node) {
    if (node < 0 || At(node) >= pobjGraph.Nodes.size()) throw std::out_of_range("no node of the graph");
  };
  if (pobjGraph.Start) check(*pobjGraph.Start);
  for (const auto& [from, to] : pobjGraph.Edges) {
    check(from);
    check(to);
  }
}

}  // namespace

std::vector<GraphComponent> ComponentsOf(const LayoutGraph& pobjGraph) {
  CheckNumbers(pobjGraph);
  const std::size_t count = pobjGraph.Nodes.size();
  Sets sets(count);
  for (const auto& [from, to] : pobjGraph.Edges) sets.Join(from, to);

  std::vector<GraphComponent> components;
  std::vector<std::size_t> componentOf(count);
  std::vector<std::int32_t> numbers(count);
  for (std::size_t node = 0; node < count; ++node) {
    const std::size_t lowest = At(sets.Find(static_cast<std::int32_t>(node)));
    if (lowest == node) {
      componentOf[node] = components.size();
      components.emplace_back();
    }
    componentOf[node] = componentOf[lowest];
    GraphComponent& component = components[componentOf[node]];
    numbers[node] = static_cast<std::int32_t>(component.Nodes.size());
    component.Nodes.push_back(static_cast<std::int32_t>(node));
  }
  for (std::size_t edge = 0; edge < pobjGraph.Edges.size(); ++edge) {
    const auto [from, to] = pobjGraph.Edges[edge];
    GraphComponent& component = components[componentOf[At(from)]];
    component.Edges.push_back({numbers[At(from)], numbers[At(to)]});
    component.EdgeNumbers.push_back(edge);
  }
  if (pobjGraph.Start) {
    const auto first = components.begin() + static_cast<std::ptrdiff_t>(componentOf[At(*pobjGraph.Start)]);
    first->Start = numbers[At(*pobjGraph.Start)];
    std::rotate(components.begin(), first, first + 1);
  }
  return components;
}

}  // namespace vantrel

#include "model/ArcChain.h"

#include <algorithm>
#include <map>
#include <unordered_set>
#include <utility>

#include "model/Arc.h"
#include "model/Vector.h"

namespace vantrel {

namespace {

using Chain = std::vector<Vector*>;
using Spot = std::pair<float, float>;

Spot StartOf(const Vector& pobjSegment) { return {pobjSegment.X1(), pobjSegment.Y1()}; }
Spot EndOf(const Vector& pobjSegment) { return {pobjSegment.X2(), pobjSegment.Y2()}; }

Chain ByLinks(const Chain& pcolSegments) {
  const auto first = std::find_if(pcolSegments.begin(), pcolSegments.end(), [](const Vector* segment) { return !segment->InVector; });
  if (first == pcolSegments.end()) return {};
  std::unordered_set<const Vector*> waiting(pcolSegments.begin(), pcolSegments.end());
  Chain chain;
  for (Vector* segment = *first; segment && waiting.erase(segment) > 0; segment = segment->OutVector.get()) {
    chain.push_back(segment);
  }
  return chain;
}

// The workflow's first one if the path is closed.
Vector* AtSource(const Chain& pcolSegments) {
  std::map<Spot, int> ends;
  for (const Vector* segment : pcolSegments) {
    if (StartOf(*segment) != EndOf(*segment)) ++ends[EndOf(*segment)];
  }
  const auto found =
      std::find_if(pcolSegments.begin(), pcolSegments.end(), [&](const Vector* segment) { return !ends.contains(StartOf(*segment)); });
  return found == pcolSegments.end() ? pcolSegments.front() : *found;
}

Chain ByEnds(const Chain& pcolSegments) {
  std::multimap<Spot, Vector*> waiting;  // equal points keep the workflow's order
  Vector* const first = AtSource(pcolSegments);
  for (Vector* segment : pcolSegments) {
    if (segment != first) waiting.emplace(StartOf(*segment), segment);
  }
  Chain chain{first};
  while (!waiting.empty()) {
    const auto next = waiting.find(EndOf(*chain.back()));
    if (next == waiting.end()) break;
    chain.push_back(next->second);
    waiting.erase(next);
  }
  return chain;
}

}  // namespace

std::vector<Vector*> ChainOf(const Arc& pobjArc) {
  auto segments = pobjArc.Segments();
  if (segments.size() > 1) {
    for (const auto& method : {ByLinks, ByEnds}) {
      Chain chain = method(segments);
      if (chain.size() == segments.size()) return chain;
    }
  }
  return segments;
}

}  // namespace vantrel

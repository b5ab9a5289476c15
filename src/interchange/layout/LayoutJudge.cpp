#include "interchange/layout/LayoutJudge.h"

#include <cmath>
#include <cstddef>
#include <map>
#include <utility>

namespace vantrel {

bool NeedsLayout(const std::vector<std::optional<LayoutPoint>>& pcolPositions, float psngSpot) {
  std::map<std::pair<float, float>, std::size_t> spots;
  for (const auto& position : pcolPositions) {
    if (!position) return true;
    ++spots[{std::floor(position->X / psngSpot), std::floor(position->Y / psngSpot)}];
  }
  std::size_t sharing = 0;
  for (const auto& [spot, count] : spots) {
    if (count > 1) sharing += count;
  }
  return 2 * sharing > pcolPositions.size();
}

}  // namespace vantrel

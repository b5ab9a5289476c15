// Which elements lie where.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "chart/Geometry.h"

namespace vantrel {

class Element;

/// Sorts rectangles into square cells, so that finding the elements of a part of the chart costs in proportion to their number.
/// Keeps rectangles that would fill very many cells in a separate list.
class SpatialGrid {
 public:
  void Insert(Element* pobjElement, const Rect& pobjBounds);
  void Remove(Element* pobjElement, const Rect& pobjBounds);
  /// Costs next to nothing while the element stays in the same cells.
  void Move(Element* pobjElement, const Rect& pobjBefore, const Rect& pobjAfter);
  /// Every element whose cell the rectangle touches, in no order and possibly several times. The caller compares the bounds.
  void Collect(const Rect& pobjArea, std::vector<Element*>& pcolFound) const;

 private:
  static constexpr float kCell = 256 * kTwipsPerPixel;
  static constexpr std::int64_t kManyCells = 64;

  struct Range {
    std::int32_t Left, Top, Right, Bottom;
    bool operator==(const Range&) const = default;
    bool IsLarge() const { return (std::int64_t{Right} - Left + 1) * (std::int64_t{Bottom} - Top + 1) > kManyCells; }
  };
  static Range RangeOf(const Rect& pobjBounds);
  void Insert(Element* pobjElement, const Range& pobjRange);
  void Remove(Element* pobjElement, const Range& pobjRange);
  static std::int64_t CellKey(std::int32_t plngX, std::int32_t plngY) {
    return std::int64_t{plngX} << 32 | static_cast<std::uint32_t>(plngY);
  }
  static bool Drop(std::vector<Element*>& pcolCell, const Element* pobjElement);
  void CollectAll(std::vector<Element*>& pcolFound) const;

  std::unordered_map<std::int64_t, std::vector<Element*>> mCells;
  std::vector<Element*> mLarge;
};

}  // namespace vantrel

#include "chart/SpatialGrid.h"

#include <algorithm>

namespace vantrel {

namespace {

// Coordinates that no chart reaches, and NaN, must not leave the range of cell numbers. (std::floor is a call and took a tenth of
// the time of a drag.)
std::int32_t CellOf(float psngAt, float psngCell) {
  constexpr float kFarthest = 1e9F;
  const float cell = psngAt * (1 / psngCell);
  if (!(cell > -kFarthest)) return -1'000'000'000;
  if (cell >= kFarthest) return 1'000'000'000;
  const auto whole = static_cast<std::int32_t>(cell);
  return static_cast<float>(whole) > cell ? whole - 1 : whole;
}

}  // namespace

SpatialGrid::Range SpatialGrid::RangeOf(const Rect& pobjBounds) {
  return {CellOf(pobjBounds.Left, kCell), CellOf(pobjBounds.Top, kCell), CellOf(pobjBounds.Right, kCell), CellOf(pobjBounds.Bottom, kCell)};
}

bool SpatialGrid::Drop(std::vector<Element*>& pcolCell, const Element* pobjElement) {
  const auto found = std::find(pcolCell.begin(), pcolCell.end(), pobjElement);
  if (found == pcolCell.end()) return false;
  *found = pcolCell.back();
  pcolCell.pop_back();
  return true;
}

void SpatialGrid::Insert(Element* pobjElement, const Rect& pobjBounds) { Insert(pobjElement, RangeOf(pobjBounds)); }

void SpatialGrid::Remove(Element* pobjElement, const Rect& pobjBounds) { Remove(pobjElement, RangeOf(pobjBounds)); }

void SpatialGrid::Move(Element* pobjElement, const Rect& pobjBefore, const Rect& pobjAfter) {
  const Range before = RangeOf(pobjBefore), after = RangeOf(pobjAfter);
  if (before == after || (before.IsLarge() && after.IsLarge())) return;
  Remove(pobjElement, before);
  Insert(pobjElement, after);
}

void SpatialGrid::Insert(Element* pobjElement, const Range& pobjRange) {
  if (pobjRange.IsLarge()) {
    mLarge.push_back(pobjElement);
    return;
  }
  for (std::int32_t y = pobjRange.Top; y <= pobjRange.Bottom; ++y) {
    for (std::int32_t x = pobjRange.Left; x <= pobjRange.Right; ++x) mCells[CellKey(x, y)].push_back(pobjElement);
  }
}

void SpatialGrid::Remove(Element* pobjElement, const Range& pobjRange) {
  if (pobjRange.IsLarge()) {
    Drop(mLarge, pobjElement);
    return;
  }
  for (std::int32_t y = pobjRange.Top; y <= pobjRange.Bottom; ++y) {
    for (std::int32_t x = pobjRange.Left; x <= pobjRange.Right; ++x) {
      const auto cell = mCells.find(CellKey(x, y));
      if (cell == mCells.end()) continue;
      Drop(cell->second, pobjElement);
      if (cell->second.empty()) mCells.erase(cell);
    }
  }
}

void SpatialGrid::CollectAll(std::vector<Element*>& pcolFound) const {
  for (const auto& [key, cell] : mCells) pcolFound.insert(pcolFound.end(), cell.begin(), cell.end());
}

void SpatialGrid::Collect(const Rect& pobjArea, std::vector<Element*>& pcolFound) const {
  pcolFound.assign(mLarge.begin(), mLarge.end());
  const Range range = RangeOf(pobjArea);
  const auto cells = (std::int64_t{range.Right} - range.Left + 1) * (std::int64_t{range.Bottom} - range.Top + 1);
  if (cells > static_cast<std::int64_t>(mCells.size())) {
    CollectAll(pcolFound);
  } else {
    for (std::int32_t y = range.Top; y <= range.Bottom; ++y) {
      for (std::int32_t x = range.Left; x <= range.Right; ++x) {
        const auto cell = mCells.find(CellKey(x, y));
        if (cell != mCells.end()) pcolFound.insert(pcolFound.end(), cell->second.begin(), cell->second.end());
      }
    }
  }
}

}  // namespace vantrel

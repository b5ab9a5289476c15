#include "chart/SpatialGrid.h"

#include <algorithm>
#include <cmath>

namespace vantrel {

namespace {

// Coordinates that no chart reaches (or that are no numbers) must not leave the range of cell numbers.
std::int32_t CellOf(float psngAt, float psngCell) {
  const float cell = std::floor(psngAt / psngCell);
  if (!(cell > -1e9F)) return -1'000'000'000;
  return cell < 1e9F ? static_cast<std::int32_t>(cell) : 1'000'000'000;
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

void SpatialGrid::Insert(Element* pobjElement, const Rect& pobjBounds) {
  const Range range = RangeOf(pobjBounds);
  if (range.IsLarge()) {
    mLarge.push_back(pobjElement);
    return;
  }
  for (std::int32_t y = range.Top; y <= range.Bottom; ++y) {
    for (std::int32_t x = range.Left; x <= range.Right; ++x) mCells[CellKey(x, y)].push_back(pobjElement);
  }
}

void SpatialGrid::Remove(Element* pobjElement, const Rect& pobjBounds) {
  const Range range = RangeOf(pobjBounds);
  if (range.IsLarge()) {
    Drop(mLarge, pobjElement);
    return;
  }
  for (std::int32_t y = range.Top; y <= range.Bottom; ++y) {
    for (std::int32_t x = range.Left; x <= range.Right; ++x) {
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
  std::sort(pcolFound.begin(), pcolFound.end());
  pcolFound.erase(std::unique(pcolFound.begin(), pcolFound.end()), pcolFound.end());
}

}  // namespace vantrel

// The rectangle around many others.
#pragma once

#include <optional>

#include "chart/Geometry.h"

namespace vantrel {

/// Keeps the smallest rectangle around others up to date while they come, move and go. After one on the edge has gone the result is
/// unknown: the caller then computes it from all of them anew.
class RunningBounds {
 public:
  bool IsKnown() const { return mblnKnown; }
  /// Nothing while no rectangle is inside.
  const std::optional<Rect>& Value() const { return mBounds; }
  void Set(const std::optional<Rect>& pobjBounds) {
    mBounds = pobjBounds;
    mblnKnown = true;
  }

  /// True when they grew.
  bool Add(const Rect& pobjRect) {
    if (mBounds && mBounds->Encloses(pobjRect)) return false;
    mBounds = mBounds ? mBounds->United(pobjRect) : pobjRect;
    return true;
  }
  void Remove(const Rect& pobjRect) {
    if (mBounds && !mBounds->EnclosesInside(pobjRect)) mblnKnown = false;
  }

 private:
  std::optional<Rect> mBounds;  // while unknown, at least as large as the true one
  bool mblnKnown = true;
};

}  // namespace vantrel

// The rectangle around many others.
#pragma once

#include <optional>

#include "chart/Geometry.h"

namespace vantrel {

/// Keeps the smallest rectangle around others up to date while they come, move and go. When one leaves that lay on the edge,
/// the result is unknown until Set is called with what a look at all of them gives.
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

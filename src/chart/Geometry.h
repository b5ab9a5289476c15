// Points and rectangles on the chart, in twips (1/1440 inch; 15 twips are one pixel at 96 dpi), y growing downwards.
#pragma once

#include <algorithm>

namespace vantrel {

constexpr float kTwipsPerPixel = 15;

struct Point {
  float X = 0, Y = 0;

  friend bool operator==(const Point&, const Point&) = default;
};

struct Rect {
  float Left = 0, Top = 0, Right = 0, Bottom = 0;

  bool IsEmpty() const { return Right <= Left || Bottom <= Top; }
  bool Contains(float psngX, float psngY) const { return psngX >= Left && psngX <= Right && psngY >= Top && psngY <= Bottom; }
  /// Touching counts.
  bool Touches(const Rect& pobjOther) const {
    return Left <= pobjOther.Right && pobjOther.Left <= Right && Top <= pobjOther.Bottom && pobjOther.Top <= Bottom;
  }
  /// True when the other lies inside or touches the edge from inside.
  bool Encloses(const Rect& pobjOther) const {
    return pobjOther.Left >= Left && pobjOther.Right <= Right && pobjOther.Top >= Top && pobjOther.Bottom <= Bottom;
  }
  /// The same without touching the edge.
  bool EnclosesInside(const Rect& pobjOther) const {
    return pobjOther.Left > Left && pobjOther.Right < Right && pobjOther.Top > Top && pobjOther.Bottom < Bottom;
  }
  Rect United(const Rect& pobjOther) const {
    return {std::min(Left, pobjOther.Left), std::min(Top, pobjOther.Top), std::max(Right, pobjOther.Right),
            std::max(Bottom, pobjOther.Bottom)};
  }
  friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace vantrel

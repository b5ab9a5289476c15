// A scroll bar of the control and the one in the window.
#pragma once

#include <functional>

#include "util/Event.h"

class QScrollBar;

namespace vantrel {

class ScrollBar;

/// Keeps both at the same value, in twips. The window's bar covers the control's range and the chart's contents, and most of a view
/// beyond them.
class ScrollLink {
 public:
  /// Calls `pOnMoved` after each change of the origin.
  ScrollLink(ScrollBar& pobjBar, QScrollBar& pobjWindowBar, std::function<void()> pOnMoved);

  /// The contents reach from `psngLow` to `psngHigh`, and `psngInView` of them are in view; twips.
  void Range(float psngLow, float psngHigh, float psngInView);

 private:
  void Show();

  ScrollBar& mobjBar;
  QScrollBar& mobjWindowBar;
  std::function<void()> mOnMoved;
  float msngLow = 0, msngHigh = 0, msngInView = 0;
  Subscription mobjRange, mobjChange;
};

}  // namespace vantrel

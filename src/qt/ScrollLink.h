// A scroll bar of the control and the one in the window.
#pragma once

#include <functional>

#include "util/Event.h"

class QScrollBar;

namespace vantrel {

class ScrollBar;

/// Keeps both at one value, in twips. The window's bar reaches everything the control's range and the chart's contents reach,
/// and the better part of a view beyond.
class ScrollLink {
 public:
  /// `pOnMoved` is called when the origin changed, whoever changed it.
  ScrollLink(ScrollBar& pobjBar, QScrollBar& pobjWindowBar, std::function<void()> pOnMoved);

  /// Contents from `psngLow` to `psngHigh`, of which `psngInView` are to be seen; twips.
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

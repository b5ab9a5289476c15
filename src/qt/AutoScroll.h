// Scrolls while the user drags something beyond the edge of a view.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QTimer>
#include <functional>

namespace vantrel {

/// Scrolls the faster, the further outside the pointer is.
class AutoScroll final {
 public:
  /// Calls `pScroll` again and again with the distance to scroll, device-independent pixels.
  explicit AutoScroll(std::function<void(const QPointF& pobjDistance)> pScroll);

  /// Sets where the pointer is during a drag. Scrolling continues without further calls.
  void Follow(const QPointF& pobjPointer, const QRectF& pobjView);
  void Stop() { mobjTimer.stop(); }

 private:
  QTimer mobjTimer;
  QPointF mobjDistance;
};

}  // namespace vantrel

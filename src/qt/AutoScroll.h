// Scrolls while the user drags something beyond the edge of a view.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QTimer>
#include <functional>

namespace vantrel {

/// The further outside the pointer is, the faster.
class AutoScroll final {
 public:
  /// Called again and again with the distance to go, device-independent pixels.
  explicit AutoScroll(std::function<void(const QPointF& pobjDistance)> pScroll);

  /// Where the pointer is while something is dragged; goes on without further calls.
  void Follow(const QPointF& pobjPointer, const QRectF& pobjView);
  void Stop() { mobjTimer.stop(); }

 private:
  QTimer mobjTimer;
  QPointF mobjDistance;
};

}  // namespace vantrel

#include "qt/AutoScroll.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace vantrel {

namespace {

constexpr std::chrono::milliseconds kInterval(40);
constexpr double kEdge = 2;  // counts as outside, because a window may end where the screen does; device-independent pixels
constexpr double kShare = 0.3, kSlowest = 4, kFastest = 40;

double DistanceTo(double pdblAt, double pdblLow, double pdblHigh) {
  if (pdblAt < pdblLow + kEdge) return -std::clamp((pdblLow - pdblAt) * kShare, kSlowest, kFastest);
  if (pdblAt > pdblHigh - kEdge) return std::clamp((pdblAt - pdblHigh) * kShare, kSlowest, kFastest);
  return 0;
}

}  // namespace

AutoScroll::AutoScroll(std::function<void(const QPointF& pobjDistance)> pScroll) {
  mobjTimer.setInterval(kInterval);
  QObject::connect(&mobjTimer, &QTimer::timeout, &mobjTimer, [this, scroll = std::move(pScroll)] { scroll(mobjDistance); });
}

void AutoScroll::Follow(const QPointF& pobjPointer, const QRectF& pobjView) {
  mobjDistance = {DistanceTo(pobjPointer.x(), pobjView.left(), pobjView.right()),
                  DistanceTo(pobjPointer.y(), pobjView.top(), pobjView.bottom())};
  if (mobjDistance.isNull()) return Stop();
  if (!mobjTimer.isActive()) mobjTimer.start();
}

}  // namespace vantrel

// Notices that the user did something on the chart.
#pragma once

#include <QObject>
#include <QPointF>
#include <QTimer>

#include "qt/VantrelWidget.h"

namespace vantrel {

/// Follows the mouse and the keys on a chart, and the events of its control.
class ActivityWatch final : public QObject {
  Q_OBJECT

 public:
  ActivityWatch(VantrelWidget& pobjWidget, QObject* pobjParent);

  /// Says that something may have changed. Settled follows.
  void Stir() { mobjPause.start(); }

 signals:
  /// Emitted once for all changes, when the program is idle.
  void Settled();
  void PointerAt(QPointF pobjTwips);
  void PointerLeft();

 protected:
  bool eventFilter(QObject* pobjWatched, QEvent* pobjEvent) override;

 private:
  VantrelWidget& mobjWidget;
  QTimer mobjPause;
};

}  // namespace vantrel

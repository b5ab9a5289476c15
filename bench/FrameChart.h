// A chart in a window as users have it, to measure how long they wait.
#pragma once

#include <QMouseEvent>
#include <QPointF>
#include <cstdint>
#include <memory>
#include <string>

#include "model/Workflow.h"
#include "qt/VantrelWidget.h"

namespace vantrel::bench {

/// A net of rows of a hundred nodes, as PNML. Every node leads to the next one and some to the row below: 12,000 arcs for 10,000 nodes.
/// Without positions it gets a layout.
std::string GridPnml(std::int64_t plngNodes, bool pblnPositions);
/// The same net, made without PNML.
std::shared_ptr<Workflow> GridNet(std::int64_t plngNodes);

/// A widget of a window's size, with input from mouse and wheel. An event with the painting that follows is a frame.
class FrameChart final : public QObject {
 public:
  FrameChart();
  /// Returns when it is painted.
  void Show(const std::shared_ptr<Workflow>& pobjNet);
  VantrelWidget& Widget() { return mobjWidget; }
  /// The centre of a node in the middle of the view.
  QPointF SomeNode();
  void Mouse(QEvent::Type pType, const QPointF& pobjAt);
  void Wheel(int pintNotches, Qt::KeyboardModifiers pModifiers);
  /// Runs everything that the last event has set off, painting included.
  static void Settle();
  std::int64_t Paints() const { return mlngPaints; }

 protected:
  bool eventFilter(QObject* pobjWatched, QEvent* pobjEvent) override;

 private:
  VantrelWidget mobjWidget;
  std::int64_t mlngPaints = 0;
};

}  // namespace vantrel::bench

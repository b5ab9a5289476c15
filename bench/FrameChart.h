// A chart in a window as its user has it, to measure how long he waits.
#pragma once

#include <QMouseEvent>
#include <QPointF>
#include <cstdint>
#include <memory>
#include <string>

#include "model/Workflow.h"
#include "qt/VantrelWidget.h"

namespace vantrel::bench {

/// A net of rows of a hundred nodes, every node leading to the next one and some to the row below: 12,000 arcs for 10,000 nodes. As
/// PNML; without positions a layout is made of it.
std::string GridPnml(std::int64_t plngNodes, bool pblnPositions);
/// The same net without a detour through PNML.
std::shared_ptr<Workflow> GridNet(std::int64_t plngNodes);

/// A widget in the size of a window, and what reaches it from mouse and wheel. An event and the painting that it leads to are a frame.
class FrameChart final : public QObject {
 public:
  FrameChart();
  /// Until it is painted.
  void Show(const std::shared_ptr<Workflow>& pobjNet);
  VantrelWidget& Widget() { return mobjWidget; }
  /// The centre of a node in the middle of the view.
  QPointF SomeNode();
  void Mouse(QEvent::Type pType, const QPointF& pobjAt);
  void Wheel(int pintNotches, Qt::KeyboardModifiers pModifiers);
  /// Lets everything happen that the last event has led to, painting included.
  static void Settle();
  std::int64_t Paints() const { return mlngPaints; }

 protected:
  bool eventFilter(QObject* pobjWatched, QEvent* pobjEvent) override;

 private:
  VantrelWidget mobjWidget;
  std::int64_t mlngPaints = 0;
};

}  // namespace vantrel::bench

// The window on a control's chart.
#pragma once

#include <QAbstractScrollArea>
#include <QPointF>
#include <optional>
#include <vector>

#include "chart/Geometry.h"
#include "designer/PointerInput.h"
#include "designer/Vantrel.h"
#include "qt/AutoScroll.h"
#include "qt/ChartPainter.h"
#include "qt/ScrollLink.h"
#include "qt/ViewTransform.h"
#include "toolkit/Pointer.h"

class QNativeGestureEvent;

namespace vantrel {

class InPlaceEditor;

/// Paints a control's chart, selection rectangle and focus frame, scrolls and zooms, and hands mouse, keys and drops to the
/// control's Input. Ctrl with the wheel, +, -, 0 (actual size) or 9 (everything) zooms, as pinching does. The wheel, the middle button,
/// or Space and dragging pan; dragging something beyond the edge scrolls. F2 edits a text in place. Tab goes from object to object.
/// The control must outlive the view.
class ChartView final : public QAbstractScrollArea {
  Q_OBJECT

 public:
  static constexpr double kSmallestZoom = 0.1, kLargestZoom = 8;

  explicit ChartView(Vantrel& pobjControl, QWidget* pobjParent = nullptr);
  ~ChartView() override;

  double Zoom() const { return mobjTransform.Zoom; }
  /// Keeps the middle of the view in place. Values beyond the limits become the nearest limit.
  void Zoom(double pdblZoom);
  /// Keeps another point of the view in place.
  void Zoom(double pdblZoom, const QPointF& pobjAnchor);
  /// Shows everything on the chart, at most in its actual size.
  void FitToWindow();
  /// Scrolls to the upper left end of the chart.
  void ShowBeginning();
  /// Scrolls as little as needed to show the rectangle, twips.
  void Reveal(const Rect& pobjRect);
  const ViewTransform& Transform() const { return mobjTransform; }
  /// The part of the chart in view, twips.
  Rect InView() const;
  void ShowPointer(PointerShape pShape);
  /// Stores a text that is being edited in place, as if the user had left the box.
  void FinishEditing();
  /// Edits the text of the current object in place, if it has one and the chart may be changed.
  void EditText();

 signals:
  void ZoomChanged(double pdblZoom);

 protected:
  bool viewportEvent(QEvent* pobjEvent) override;
  void paintEvent(QPaintEvent* pobjEvent) override;
  void resizeEvent(QResizeEvent* pobjEvent) override;
  void scrollContentsBy(int, int) override {}
  void mousePressEvent(QMouseEvent* pobjEvent) override;
  void mouseMoveEvent(QMouseEvent* pobjEvent) override;
  void mouseReleaseEvent(QMouseEvent* pobjEvent) override;
  void mouseDoubleClickEvent(QMouseEvent* pobjEvent) override;
  void wheelEvent(QWheelEvent* pobjEvent) override;
  void keyPressEvent(QKeyEvent* pobjEvent) override;
  void keyReleaseEvent(QKeyEvent* pobjEvent) override;
  void focusOutEvent(QFocusEvent* pobjEvent) override;
  void contextMenuEvent(QContextMenuEvent* pobjEvent) override;
  void dragEnterEvent(QDragEnterEvent* pobjEvent) override;
  void dragMoveEvent(QDragMoveEvent* pobjEvent) override;
  void dropEvent(QDropEvent* pobjEvent) override;
  bool focusNextPrevChild(bool pblnNext) override;

 private:
  void Listen();
  void Damaged(const Rect& pobjRect, int plngReach);
  void OriginChanged();
  void UpdateRange();
  void GrowContents(const Rect& pobjRect);
  bool ZoomByKey(const QKeyEvent& pobjEvent);
  void ZoomByGesture(const QNativeGestureEvent& pobjEvent);
  bool Pinch(QEvent& pobjEvent);
  bool ShowTip(QEvent& pobjEvent);
  void DragOn(const QPointF& pobjDistance);
  PointerInput InputAt(const QPointF& pobjPoint, MouseButton pButton, Qt::KeyboardModifiers pModifiers) const;
  void PaintPart(const QRect& pobjPart);

  Vantrel& mobjControl;
  ChartPainter mobjPainter;
  ViewTransform mobjTransform;
  Rect mobjContents;
  InPlaceEditor* mobjEditor;
  std::optional<QPointF> mobjPanFrom;  // while the user drags the whole chart
  QPointF mobjPointer;                 // where a drag was last
  AutoScroll mobjAutoScroll;
  bool mblnSpace = false;
  int mlngDamages = 0;  // since the last painting
  ScrollLink mobjHorizontal, mobjVertical;
  std::vector<Subscription> mcolSubscriptions;
};

}  // namespace vantrel

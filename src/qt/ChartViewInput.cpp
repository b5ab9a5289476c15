// How the view handles mouse, keys and drops.
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGestureEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QPointer>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <cmath>

#include "designer/ControlScope.h"
#include "designer/gestures/Choosing.h"
#include "qt/ChartView.h"
#include "qt/Conversions.h"
#include "qt/DraggedData.h"
#include "qt/InPlaceEditor.h"
#include "qt/InputTranslation.h"
#include "qt/ObjectTour.h"
#include "qt/QtToolkit.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

constexpr double kZoomStep = 1.2;
constexpr double kWheelStep = 120;      // eighths of a degree: one notch
constexpr double kPixelsPerNotch = 60;  // device-independent
constexpr float kTipTolerance = 3 * kTwipsPerPixel;

// Hosts hear of what happened when the handler is over: they may delete the view. What they throw is shown.
template <class Handler>
void Handle(const Vantrel& pobjControl, Handler&& pHandler) {
  ShowErrors([&] {
    const ControlScope scope(pobjControl);
    pHandler();
  });
}

void ScrollBy(ScrollBar& pobjBar, double pdblTwips) {
  if (pdblTwips != 0) pobjBar.Value(pobjBar.Value() + static_cast<float>(pdblTwips));
}

}  // namespace

PointerInput ChartView::InputAt(const QPointF& pobjPoint, MouseButton pButton, Qt::KeyboardModifiers pModifiers) const {
  return PointerInputAt(mobjTransform.ToChart(pobjPoint), pButton, pModifiers);
}

bool ChartView::viewportEvent(QEvent* pobjEvent) {
  switch (pobjEvent->type()) {
    case QEvent::ToolTip:
      return ShowTip(*pobjEvent);
    case QEvent::Gesture:
      return Pinch(*pobjEvent);
    case QEvent::NativeGesture:
      ZoomByGesture(static_cast<const QNativeGestureEvent&>(*pobjEvent));
      return true;
    default:
      return QAbstractScrollArea::viewportEvent(pobjEvent);
  }
}

void ChartView::ZoomByGesture(const QNativeGestureEvent& pobjEvent) {
  if (pobjEvent.gestureType() == Qt::ZoomNativeGesture) Zoom(Zoom() * (1 + pobjEvent.value()), pobjEvent.position());
}

bool ChartView::Pinch(QEvent& pobjEvent) {
  const auto* const pinch = static_cast<QPinchGesture*>(static_cast<QGestureEvent&>(pobjEvent).gesture(Qt::PinchGesture));
  if (!pinch) return false;
  mobjControl.Input.Abandon();
  Zoom(Zoom() * pinch->scaleFactor(), viewport()->mapFromGlobal(pinch->centerPoint()));
  return true;
}

bool ChartView::ShowTip(QEvent& pobjEvent) {
  const auto& help = static_cast<const QHelpEvent&>(pobjEvent);
  const QPointF at = mobjTransform.ToChart(help.pos());
  const Element* const element = mobjControl.ChartArea.ElementAt(static_cast<float>(at.x()), static_cast<float>(at.y()), kTipTolerance);
  const std::string tip = element && !element->Tag().empty() ? TipOf(mobjControl, *element) : std::string();
  const QString text = ToQString(tip).toHtmlEscaped().replace('\n', "<br>");
  QToolTip::showText(help.globalPos(), text.isEmpty() ? text : "<qt>" + text + "</qt>", viewport());
  return true;
}

void ChartView::mousePressEvent(QMouseEvent* pobjEvent) {
  Handle(mobjControl, [&] {
    mobjEditor->Commit();
    const bool drags = pobjEvent->button() == Qt::MiddleButton || (mblnSpace && pobjEvent->button() == Qt::LeftButton);
    if (drags && !mobjControl.Input.IsCaptured()) {
      mobjPanFrom = pobjEvent->position();
      return viewport()->setCursor(Qt::ClosedHandCursor);
    }
    mobjControl.Input.Press(InputAt(pobjEvent->position(), MouseButtonOf(pobjEvent->button()), pobjEvent->modifiers()));
  });
}

void ChartView::mouseMoveEvent(QMouseEvent* pobjEvent) {
  if (!mobjPanFrom) {
    return Handle(mobjControl, [&] {
      mobjPointer = pobjEvent->position();
      mobjControl.Input.Move(InputAt(mobjPointer, MouseButtonOf(pobjEvent->buttons()), pobjEvent->modifiers()));
      if (mobjControl.Input.IsCaptured()) mobjAutoScroll.Follow(mobjPointer, viewport()->rect());
    });
  }
  const QPointF moved = (*mobjPanFrom - pobjEvent->position()) / mobjTransform.Scale();
  mobjPanFrom = pobjEvent->position();
  ScrollBy(mobjControl.HScroll, moved.x());
  ScrollBy(mobjControl.VScroll, moved.y());
}

// The pointer rests while the chart moves under it. The gesture may have ended meanwhile: by Escape, or with its workflow.
void ChartView::DragOn(const QPointF& pobjDistance) {
  if (!mobjControl.Input.IsCaptured()) return mobjAutoScroll.Stop();
  ScrollBy(mobjControl.HScroll, pobjDistance.x() / mobjTransform.Scale());
  ScrollBy(mobjControl.VScroll, pobjDistance.y() / mobjTransform.Scale());
  mobjControl.Input.Move(InputAt(mobjPointer, vntLeftButton, QGuiApplication::keyboardModifiers()));
}

void ChartView::mouseReleaseEvent(QMouseEvent* pobjEvent) {
  mobjAutoScroll.Stop();
  if (!mobjPanFrom) {
    return mobjControl.Input.Release(InputAt(pobjEvent->position(), MouseButtonOf(pobjEvent->button()), pobjEvent->modifiers()));
  }
  mobjPanFrom.reset();
  viewport()->setCursor(mblnSpace ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

void ChartView::mouseDoubleClickEvent(QMouseEvent* pobjEvent) {
  if (pobjEvent->button() == Qt::MiddleButton || mblnSpace) return mousePressEvent(pobjEvent);
  mobjControl.Input.DoubleClick(InputAt(pobjEvent->position(), MouseButtonOf(pobjEvent->button()), pobjEvent->modifiers()));
}

void ChartView::wheelEvent(QWheelEvent* pobjEvent) {
  const QPointF notches = QPointF(pobjEvent->angleDelta()) / kWheelStep;
  if (pobjEvent->modifiers() & Qt::ControlModifier) {
    Zoom(Zoom() * std::pow(kZoomStep, notches.y()), pobjEvent->position());
    return pobjEvent->accept();
  }
  QPointF pixels = pobjEvent->pixelDelta().isNull() ? notches * kPixelsPerNotch : QPointF(pobjEvent->pixelDelta());
  if (pobjEvent->modifiers() & Qt::ShiftModifier && pixels.x() == 0) pixels = pixels.transposed();
  ScrollBy(mobjControl.HScroll, -pixels.x() / mobjTransform.Scale());
  ScrollBy(mobjControl.VScroll, -pixels.y() / mobjTransform.Scale());
  pobjEvent->accept();
}

bool ChartView::ZoomByKey(const QKeyEvent& pobjEvent) {
  if (!(pobjEvent.modifiers() & Qt::ControlModifier)) return false;
  switch (pobjEvent.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      Zoom(Zoom() * kZoomStep);
      return true;
    case Qt::Key_Minus:
      Zoom(Zoom() / kZoomStep);
      return true;
    case Qt::Key_0:
      Zoom(1);
      return true;
    case Qt::Key_9:
      FitToWindow();
      return true;
    default:
      return false;
  }
}

void ChartView::keyPressEvent(QKeyEvent* pobjEvent) {
  if (ZoomByKey(*pobjEvent)) return;
  if (pobjEvent->key() == Qt::Key_Space) {
    mblnSpace = true;
    if (!mobjPanFrom) viewport()->setCursor(Qt::OpenHandCursor);
    return;
  }
  if (pobjEvent->key() == Qt::Key_F2) return EditText();
  const std::int16_t code = KeyCodeOf(pobjEvent->key());
  // An event that is not accepted goes on to the window, for its shortcuts and dialogs. A key that is used may have ended the view.
  if (code == 0 || !mobjControl.Input.Key(code, ShiftStateOf(pobjEvent->modifiers()))) pobjEvent->ignore();
}

void ChartView::EditText() {
  if (mobjControl.UseMode() != vntDesign || mobjControl.LockControls() || mobjControl.Input.IsCaptured()) return;
  Handle(mobjControl, [&] {
    const Ref<Element> label = TextOnTour(mobjControl);
    if (!label || !label->Visible()) return;
    const Rect bounds = label->Bounds();
    mobjControl.CurrentControl(label);
    Reveal(bounds);
    mobjControl.FocusFrame.Edit();
  });
}

void ChartView::keyReleaseEvent(QKeyEvent* pobjEvent) {
  if (pobjEvent->key() != Qt::Key_Space || pobjEvent->isAutoRepeat()) return pobjEvent->ignore();
  mblnSpace = false;
  if (!mobjPanFrom) viewport()->setCursor(Qt::ArrowCursor);
}

void ChartView::focusOutEvent(QFocusEvent* pobjEvent) {
  QAbstractScrollArea::focusOutEvent(pobjEvent);
  mblnSpace = false;
  if (pobjEvent->reason() == Qt::ActiveWindowFocusReason) mobjControl.Input.Abandon();
}

void ChartView::contextMenuEvent(QContextMenuEvent* pobjEvent) {
  // A mouse press has shown the menu by itself.
  if (pobjEvent->reason() != QContextMenuEvent::Keyboard || !mobjControl.EnablePopups) return;
  const QPoint centre = viewport()->rect().center();
  const Element* const current = mobjControl.CurrentControl().get();
  const QPoint at = current ? mobjTransform.ToView(current->Bounds()).center().toPoint() : centre;
  if (auto* const toolkit = dynamic_cast<QtToolkit*>(&mobjControl.Tools())) toolkit->PopupPosition = viewport()->mapToGlobal(at);
  ShowErrors([&] {
    if (mobjControl.UseMode() == vntDesign) return mobjControl.ShowDesignMenu();
    if (mobjControl.UseMode() != vntRun) mobjControl.ShowTestMenu();
  });
}

void ChartView::dragEnterEvent(QDragEnterEvent* pobjEvent) { pobjEvent->acceptProposedAction(); }

void ChartView::dragMoveEvent(QDragMoveEvent* pobjEvent) { pobjEvent->acceptProposedAction(); }

void ChartView::dropEvent(QDropEvent* pobjEvent) {
  const QPointer<ChartView> alive(this);
  const bool isForeign = !mobjControl.DragObject;
  if (isForeign) mobjControl.DragObject = std::make_shared<DraggedData>(*pobjEvent->mimeData());
  const auto input = InputAt(pobjEvent->position(), MouseButtonOf(pobjEvent->buttons()), pobjEvent->modifiers());
  const bool isTaken = mobjControl.Input.Drop(input);
  if (isTaken) pobjEvent->acceptProposedAction();
  if (!isTaken) pobjEvent->ignore();
  if (alive && isForeign) mobjControl.DragObject = nullptr;
}

bool ChartView::focusNextPrevChild(bool pblnNext) {
  const auto next = hasFocus() ? NextOnTour(mobjControl, pblnNext) : nullptr;
  if (!next) return QAbstractScrollArea::focusNextPrevChild(pblnNext);
  Handle(mobjControl, [&] {
    const Rect bounds = next->Bounds();
    mobjControl.Comfort.TabChoosesOne ? ChooseAlone(mobjControl, next) : mobjControl.CurrentControl(next);
    Reveal(bounds);
  });
  return true;
}

}  // namespace vantrel

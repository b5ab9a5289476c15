#include "app/window/ActivityWatch.h"

#include <QEvent>
#include <QMouseEvent>

#include "qt/ChartView.h"

namespace vantrel {

ActivityWatch::ActivityWatch(VantrelWidget& pobjWidget, QObject* pobjParent) : QObject(pobjParent), mobjWidget(pobjWidget) {
  mobjPause.setSingleShot(true);
  mobjPause.setInterval(0);
  connect(&mobjPause, &QTimer::timeout, this, &ActivityWatch::Settled);
  connect(&pobjWidget, &VantrelWidget::Selected, this, &ActivityWatch::Stir);
  connect(&pobjWidget, &VantrelWidget::Pasted, this, &ActivityWatch::Stir);
  connect(&pobjWidget, &VantrelWidget::DirtyChange, this, &ActivityWatch::Stir);
  connect(&pobjWidget, &VantrelWidget::UseModeChange, this, &ActivityWatch::Stir);
  connect(&pobjWidget.View(), &ChartView::ZoomChanged, this, &ActivityWatch::Stir);
  pobjWidget.View().installEventFilter(this);
  pobjWidget.View().viewport()->installEventFilter(this);
}

bool ActivityWatch::eventFilter(QObject* pobjWatched, QEvent* pobjEvent) {
  switch (pobjEvent->type()) {
    case QEvent::MouseMove:
      if (pobjWatched == mobjWidget.View().viewport()) {
        emit PointerAt(mobjWidget.View().Transform().ToChart(static_cast<QMouseEvent*>(pobjEvent)->position()));
      }
      break;
    case QEvent::Leave:
      emit PointerLeft();
      break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Drop:
      Stir();
      break;
    default:
      break;
  }
  return false;
}

}  // namespace vantrel

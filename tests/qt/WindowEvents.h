// What a user does to a widget.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

namespace vantrel {

inline void SendMouse(QWidget& pobjWidget, QEvent::Type pType, const QPointF& pobjAt, Qt::MouseButton pButton = Qt::LeftButton,
                      Qt::KeyboardModifiers pModifiers = Qt::NoModifier) {
  const bool isMove = pType == QEvent::MouseMove, isRelease = pType == QEvent::MouseButtonRelease;
  QMouseEvent event(pType, pobjAt, pobjWidget.mapToGlobal(pobjAt), isMove ? Qt::NoButton : pButton,
                    isRelease ? Qt::NoButton : Qt::MouseButtons(pButton), pModifiers);
  QApplication::sendEvent(&pobjWidget, &event);
}

inline void Click(QWidget& pobjWidget, const QPointF& pobjAt, Qt::MouseButton pButton = Qt::LeftButton) {
  SendMouse(pobjWidget, QEvent::MouseButtonPress, pobjAt, pButton);
  SendMouse(pobjWidget, QEvent::MouseButtonRelease, pobjAt, pButton);
}

inline void TurnWheel(QWidget& pobjWidget, const QPointF& pobjAt, int plngNotches, Qt::KeyboardModifiers pModifiers) {
  QWheelEvent event(pobjAt, pobjWidget.mapToGlobal(pobjAt), {}, {0, 120 * plngNotches}, Qt::NoButton, pModifiers, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&pobjWidget, &event);
}

inline void PressKey(QWidget& pobjWidget, int plngKey, Qt::KeyboardModifiers pModifiers = Qt::NoModifier, const QString& pstrText = {}) {
  QKeyEvent press(QEvent::KeyPress, plngKey, pModifiers, pstrText);
  QApplication::sendEvent(&pobjWidget, &press);
  QKeyEvent release(QEvent::KeyRelease, plngKey, pModifiers, pstrText);
  QApplication::sendEvent(&pobjWidget, &release);
}

}  // namespace vantrel

#include "qt/InputTranslation.h"

namespace vantrel {

std::int16_t ShiftStateOf(Qt::KeyboardModifiers pModifiers) {
  const int state = (pModifiers & Qt::ShiftModifier ? vntShift : 0) | (pModifiers & Qt::ControlModifier ? vntCtrl : 0) |
                    (pModifiers & Qt::AltModifier ? vntAlt : 0);
  return static_cast<std::int16_t>(state);
}

MouseButton MouseButtonOf(Qt::MouseButton pButton) {
  switch (pButton) {
    case Qt::LeftButton:
      return vntLeftButton;
    case Qt::RightButton:
      return vntRightButton;
    case Qt::MiddleButton:
      return vntMiddleButton;
    default:
      return vntNoButton;
  }
}

MouseButton MouseButtonOf(Qt::MouseButtons pButtons) {
  for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    if (pButtons.testFlag(button)) return MouseButtonOf(button);
  }
  return vntNoButton;
}

PointerInput PointerInputAt(const QPointF& pobjTwips, MouseButton pButton, Qt::KeyboardModifiers pModifiers) {
  return {static_cast<float>(pobjTwips.x()), static_cast<float>(pobjTwips.y()), pButton, ShiftStateOf(pModifiers)};
}

std::int16_t KeyCodeOf(int plngKey) {
  switch (plngKey) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Delete:
      return 46;
    default:
      return 0;
  }
}

}  // namespace vantrel

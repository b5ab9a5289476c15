// Events of Qt as raw input of the chart.
#pragma once

#include <QPointF>
#include <Qt>
#include <cstdint>

#include "designer/PointerInput.h"

namespace vantrel {

std::int16_t ShiftStateOf(Qt::KeyboardModifiers pModifiers);
MouseButton MouseButtonOf(Qt::MouseButton pButton);
/// Of several buttons held: the left one, then the right one.
MouseButton MouseButtonOf(Qt::MouseButtons pButtons);
PointerInput PointerInputAt(const QPointF& pobjTwips, MouseButton pButton, Qt::KeyboardModifiers pModifiers);
/// The code that ChartInput::Key takes, or 0 for a key that means nothing on the chart.
std::int16_t KeyCodeOf(int plngKey);

}  // namespace vantrel

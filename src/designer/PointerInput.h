// A raw event of the mouse on the chart.
#pragma once

#include <cstdint>

namespace vantrel {

enum MouseButton : std::int16_t { vntNoButton = 0, vntLeftButton = 1, vntRightButton = 2, vntMiddleButton = 4 };
/// Modifier keys, added up.
enum ShiftState : std::int16_t { vntNoShift = 0, vntShift = 1, vntCtrl = 2, vntAlt = 4 };

struct PointerInput {
  float X = 0, Y = 0;                ///< chart twips
  MouseButton Button = vntNoButton;  ///< pressed or released; of a move: the one held
  std::int16_t Shift = vntNoShift;   ///< ShiftState values
};

}  // namespace vantrel

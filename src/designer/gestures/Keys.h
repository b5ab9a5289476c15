// The keyboard on the chart.
#pragma once

#include <cstdint>

namespace vantrel {

class Vantrel;

enum KeyCode : std::int16_t { kEscapeKey = 27, kLeftKey = 37, kUpKey = 38, kRightKey = 39, kDownKey = 40, kDeleteKey = 46 };

/// Escape, Delete and the arrow keys; a step is 15 twips with Shift alone and 75 otherwise. False when the chart does not use the key. The
/// control may be gone afterwards.
bool PressKey(Vantrel& pobjControl, std::int16_t pintCode, std::int16_t pintShift);

}  // namespace vantrel

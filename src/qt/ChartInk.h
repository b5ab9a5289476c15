// Colours that stay readable on every background of the chart.
#pragma once

#include <QColor>
#include <cmath>

#include "qt/Conversions.h"
#include "util/Color.h"

namespace vantrel {

constexpr QColor kInk(0x1e, 0x29, 0x3b);       ///< of arcs, as of the pictures' edges
constexpr QColor kLightInk(0xf8, 0xfa, 0xfc);  ///< the same on a dark ground, and of text there
constexpr QColor kAccent(0x1d, 0x4e, 0xd8);    ///< of the selection
constexpr QColor kLightAccent(0x93, 0xc5, 0xfd);

/// Whether white is easier to read on this colour than black.
inline bool IsDark(const QColor& pobjGround) {
  constexpr double kMiddle = 0.179;  // luminance with the same contrast to both
  const auto linear = [](double pdblPart) { return std::pow((pdblPart + 0.055) / 1.055, 2.4); };
  return 0.2126 * linear(pobjGround.redF()) + 0.7152 * linear(pobjGround.greenF()) + 0.0722 * linear(pobjGround.blueF()) < kMiddle;
}

/// Turns black, the usual colour of texts and lines, light on a dark ground. Keeps other colours.
inline QColor InkOn(Color plngColor, bool pblnOnDark) { return plngColor == kBlack && pblnOnDark ? kLightInk : ToQColor(plngColor); }

}  // namespace vantrel

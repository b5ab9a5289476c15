// Values of the chart as values of Qt, and back.
#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>
#include <string>
#include <string_view>

#include "chart/Font.h"
#include "chart/Geometry.h"
#include "util/Color.h"

namespace vantrel {

QColor ToQColor(Color plngColor);
Color ToColor(const QColor& pobjColor);

inline QString ToQString(std::string_view pstrText) { return QString::fromUtf8(pstrText.data(), static_cast<qsizetype>(pstrText.size())); }

/// Dots per inch that Qt makes points into pixels with, on screens and in QImages alike.
int FontDpi();
/// A font whose sizes are chart pixels: a point is 96/72 of one whatever the screen says. Unhinted, so that widths grow in
/// proportion to the zoom.
QFont ToQFont(const Font& pobjFont);
/// Height of the font in chart pixels.
float PixelSize(const Font& pobjFont);

/// Twips to chart pixels.
inline QRectF ToPixels(const Rect& pobjRect) {
  return {QPointF(pobjRect.Left / kTwipsPerPixel, pobjRect.Top / kTwipsPerPixel),
          QPointF(pobjRect.Right / kTwipsPerPixel, pobjRect.Bottom / kTwipsPerPixel)};
}

}  // namespace vantrel

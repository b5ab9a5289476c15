#include "qt/Conversions.h"

#include <QGuiApplication>
#include <QScreen>

namespace vantrel {

namespace {

constexpr int kFontDpi = 96;
constexpr float kPointsPerInch = 72;
constexpr int kUsualSize = 8;  // points

float Points(const Font& pobjFont) { return static_cast<float>(pobjFont.Size > 0 ? pobjFont.Size : kUsualSize); }

}  // namespace

QColor ToQColor(Color plngColor) { return QColor(plngColor & 0xFF, plngColor >> 8 & 0xFF, plngColor >> 16 & 0xFF); }

Color ToColor(const QColor& pobjColor) { return pobjColor.red() | pobjColor.green() << 8 | pobjColor.blue() << 16; }

int FontDpi() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  return screen ? qRound(screen->logicalDotsPerInchY()) : kFontDpi;
}

QFont ToQFont(const Font& pobjFont) {
  QFont font(ToQString(pobjFont.Name));
  font.setPointSizeF(static_cast<qreal>(Points(pobjFont)) * kFontDpi / FontDpi());
  font.setBold(pobjFont.Bold);
  font.setItalic(pobjFont.Italic);
  font.setUnderline(pobjFont.Underline);
  font.setStrikeOut(pobjFont.Strikethrough);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

float PixelSize(const Font& pobjFont) { return Points(pobjFont) * kFontDpi / kPointsPerInch; }

}  // namespace vantrel

#include "qt/QtTextMeasure.h"

#include <QFontMetricsF>
#include <QString>
#include <algorithm>
#include <optional>

#include "chart/Geometry.h"
#include "qt/Conversions.h"

namespace vantrel {

namespace {

// Charts use few fonts, and mostly the same one many times in a row; finding its metrics costs more than measuring a caption.
const QFontMetricsF& MetricsOf(const Font& pobjFont) {
  static Font latest;
  static std::optional<QFontMetricsF> metrics;
  if (!metrics || latest != pobjFont) {
    metrics.emplace(ToQFont(pobjFont));
    latest = pobjFont;
  }
  return *metrics;
}

}  // namespace

TextSize QtTextMeasure::Measure(std::string_view pstrText, const Font& pobjFont) const {
  const QFontMetricsF& metrics = MetricsOf(pobjFont);
  qreal widest = 0;
  const auto lines = ToQString(pstrText).remove('\r').split('\n');
  for (const QString& line : lines) widest = std::max(widest, metrics.horizontalAdvance(line));
  return {static_cast<float>(widest) * kTwipsPerPixel,
          static_cast<float>(metrics.height() * static_cast<qreal>(lines.size())) * kTwipsPerPixel};
}

}  // namespace vantrel

#include "qt/QtTextMeasure.h"

#include <QFontMetricsF>
#include <QString>
#include <algorithm>
#include <optional>
#include <string>

#include "chart/Geometry.h"
#include "qt/Conversions.h"

namespace vantrel {

namespace {

TextSize SizeOf(const QString& pstrText, const QFontMetricsF& pobjMetrics) {
  qreal widest = 0;
  const auto lines = pstrText.split('\n');
  for (const QString& line : lines) widest = std::max(widest, pobjMetrics.horizontalAdvance(line));
  return {static_cast<float>(widest) * kTwipsPerPixel,
          static_cast<float>(pobjMetrics.height() * static_cast<qreal>(lines.size())) * kTwipsPerPixel};
}

// Charts use few fonts, and mostly the same one many times in a row; finding its metrics costs more than measuring a caption. Texts come
// in a row as well: nearly every arc has the weight 1.
struct Latest {
  vantrel::Font Face;
  std::optional<QFontMetricsF> Metrics;
  std::string Text;
  TextSize Size;
};

}  // namespace

TextSize QtTextMeasure::Measure(std::string_view pstrText, const Font& pobjFont) const {
  static Latest latest;
  const bool isKnown = latest.Metrics && latest.Face == pobjFont;
  if (isKnown && latest.Text == pstrText) return latest.Size;
  if (!isKnown) {
    latest.Metrics.emplace(ToQFont(pobjFont));
    latest.Face = pobjFont;
  }
  latest.Text = pstrText;
  latest.Size = SizeOf(ToQString(pstrText).remove('\r'), *latest.Metrics);
  return latest.Size;
}

}  // namespace vantrel

// Text sizes from the fonts that the chart is painted with.
#pragma once

#include "chart/TextMeasure.h"

namespace vantrel {

/// For ChartSurface::Measure, so that labels are exactly as large as their texts on this system. Needs a QGuiApplication.
class QtTextMeasure final : public TextMeasure {
 public:
  TextSize Measure(std::string_view pstrText, const Font& pobjFont) const override;
};

}  // namespace vantrel

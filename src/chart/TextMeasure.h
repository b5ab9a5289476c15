// How large a text is on the chart.
#pragma once

#include <string_view>

#include "chart/Font.h"

namespace vantrel {

struct TextSize {
  float Width = 0, Height = 0;  ///< twips
};

/// Measures texts for labels. A window system installs its own; until then BuiltInTextMeasure serves.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  /// The size of a text of one or more lines (separated by line feeds), UTF-8, without wrapping.
  virtual TextSize Measure(std::string_view pstrText, const Font& pobjFont) const = 0;
};

/// Uses the advance widths of a common sans-serif face (Helvetica's metrics, which its usual replacements share).
/// Characters beyond ASCII count as wide as a lower-case letter, East Asian ones and emoji as wide as they are high.
class BuiltInTextMeasure final : public TextMeasure {
 public:
  TextSize Measure(std::string_view pstrText, const Font& pobjFont) const override;
};

}  // namespace vantrel

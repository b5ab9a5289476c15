// Texts of labels, laid out once.
#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QStaticText>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "chart/Font.h"
#include "chart/Label.h"

namespace vantrel {

/// A text laid out for a label's box, in chart pixels.
struct TextLayout {
  QStaticText Text;
  QFont Font;
  QPointF Inset;                            ///< of the text from the box's corner
  QRectF Extent;                            ///< what the text covers of the box, from the box's corner
  Qt::Alignment Alignment = Qt::AlignLeft;  ///< for text that QPainter lays out
  bool IsClipped = false;                   ///< the text is larger than the box
  bool IsDecorated = false;                 ///< underlined or struck out, which QStaticText draws in the wrong place when scaled
};

/// Lays out the texts of labels and keeps the layouts: text is what costs most on a chart. Labels with the same text, font and size
/// share one layout. Layouts that were not used for a while are dropped.
class TextLayouts {
 public:
  /// Valid until the next call.
  const TextLayout& Of(const Label& pobjLabel);

 private:
  static constexpr std::size_t kMost = 20000;  // of a generation; there are two

  struct KeyView {
    std::string_view Caption;
    const Font& Face;
    float Width, Height;
    std::int16_t Alignment;
  };
  struct Key {
    std::string Caption;
    Font Face;
    float Width, Height;
    std::int16_t Alignment;
    operator KeyView() const { return {Caption, Face, Width, Height, Alignment}; }  // NOLINT(google-explicit-constructor)
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(const KeyView& pobjKey) const;
  };
  struct Same {
    using is_transparent = void;
    bool operator()(const KeyView& pobjA, const KeyView& pobjB) const;
  };
  using Generation = std::unordered_map<Key, TextLayout, Hash, Same>;

  Generation mYoung, mOld;
};

}  // namespace vantrel

#include "qt/TextLayouts.h"

#include <QChar>
#include <QTextOption>
#include <algorithm>
#include <functional>
#include <utility>

#include "chart/Geometry.h"
#include "qt/Conversions.h"

namespace vantrel {

namespace {

constexpr qreal kSlack = 0.75;     // chart pixels that rounding may take
constexpr int kNarrowest = 90;     // per cent; a text that needs no more is condensed rather than wrapped
constexpr qreal kPadding = 2;      // chart pixels between a box and its text, where there is room
constexpr qreal kSmallestBox = 1;  // chart pixels

Qt::Alignment AlignmentOf(std::int16_t pintAlignment) {
  return pintAlignment == 1 ? Qt::AlignRight : pintAlignment == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
}

void LayOut(TextLayout& pobjLayout, qreal psngWidth, Qt::Alignment pAlignment, QTextOption::WrapMode pMode) {
  QTextOption option(pAlignment);
  option.setWrapMode(pMode);
  pobjLayout.Text.setTextOption(option);
  pobjLayout.Text.setTextWidth(psngWidth);
  pobjLayout.Text.prepare({}, pobjLayout.Font);
}

// Boxes that were fitted to their text on another system may be a little narrow for it here: then the letters move together, as
// wrapping would hide the last word.
void FitTo(TextLayout& pobjLayout, qreal psngWidth) {
  LayOut(pobjLayout, -1, Qt::AlignLeft, QTextOption::NoWrap);
  const QSizeF natural = pobjLayout.Text.size();
  const int stretch = natural.width() > 0 ? static_cast<int>(100 * psngWidth / natural.width()) : 100;
  if (natural.width() <= psngWidth + kSlack) {
    pobjLayout.Inset.setX(std::clamp((psngWidth - natural.width()) / 2, 0.0, kPadding));
    const qreal inner = std::max(psngWidth - 2 * pobjLayout.Inset.x(), natural.width());
    LayOut(pobjLayout, inner, pobjLayout.Alignment, QTextOption::NoWrap);
  } else if (stretch >= kNarrowest) {
    pobjLayout.Font.setStretch(stretch - 1);
    LayOut(pobjLayout, psngWidth + kSlack, pobjLayout.Alignment, QTextOption::NoWrap);
  } else {
    pobjLayout.Inset.setX(psngWidth > 6 * kPadding ? kPadding : 0);
    LayOut(pobjLayout, std::max(psngWidth - 2 * pobjLayout.Inset.x(), kSmallestBox), pobjLayout.Alignment, QTextOption::WordWrap);
  }
}

TextLayout MakeLayout(const Label& pobjLabel) {
  TextLayout layout;
  layout.Text = QStaticText(ToQString(pobjLabel.Caption()).remove('\r').replace('\n', QChar::LineSeparator));
  layout.Text.setTextFormat(Qt::PlainText);
  layout.Text.setPerformanceHint(QStaticText::AggressiveCaching);
  layout.Font = ToQFont(pobjLabel.Font());
  layout.Alignment = AlignmentOf(pobjLabel.Alignment());
  layout.IsDecorated = pobjLabel.Font().Underline || pobjLabel.Font().Strikethrough;
  const qreal width = pobjLabel.Width() / kTwipsPerPixel, height = pobjLabel.Height() / kTwipsPerPixel;
  FitTo(layout, width);
  const QSizeF size = layout.Text.size();
  layout.Inset.setY(std::clamp((height - size.height()) / 2, 0.0, kPadding));
  layout.IsClipped = size.width() > width + 2 * kSlack || size.height() > height * 1.1 + kSlack;
  return layout;
}

}  // namespace

std::size_t TextLayouts::Hash::operator()(const KeyView& pobjKey) const {
  const std::size_t caption = std::hash<std::string_view>()(pobjKey.Caption);
  return caption * 31 + std::hash<float>()(pobjKey.Width) + static_cast<std::size_t>(pobjKey.Face.Size) * 7;
}

bool TextLayouts::Same::operator()(const KeyView& pobjA, const KeyView& pobjB) const {
  return pobjA.Caption == pobjB.Caption && pobjA.Width == pobjB.Width && pobjA.Height == pobjB.Height &&
         pobjA.Alignment == pobjB.Alignment && pobjA.Face == pobjB.Face;
}

const TextLayout& TextLayouts::Of(const Label& pobjLabel) {
  const KeyView key{pobjLabel.Caption(), pobjLabel.Font(), pobjLabel.Width(), pobjLabel.Height(), pobjLabel.Alignment()};
  if (const auto young = mYoung.find(key); young != mYoung.end()) return young->second;
  if (mYoung.size() >= kMost) {
    mOld = std::move(mYoung);
    mYoung.clear();
  }
  if (const auto old = mOld.find(key); old != mOld.end()) return mYoung.insert(mOld.extract(old)).position->second;
  Key owned{pobjLabel.Caption(), pobjLabel.Font(), pobjLabel.Width(), pobjLabel.Height(), pobjLabel.Alignment()};
  return mYoung.emplace(std::move(owned), MakeLayout(pobjLabel)).first->second;
}

}  // namespace vantrel

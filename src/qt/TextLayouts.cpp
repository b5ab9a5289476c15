#include "qt/TextLayouts.h"

#include <QChar>
#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <functional>
#include <utility>

#include "chart/Geometry.h"
#include "qt/Conversions.h"

namespace vantrel {

namespace {

constexpr qreal kSlack = 0.75;     // chart pixels that rounding may take
constexpr int kNarrowest = 90;     // per cent; a text that fits when condensed to this is condensed rather than wrapped
constexpr qreal kPadding = 3;      // chart pixels between a box and its text, where there is room
constexpr qreal kTight = 1;        // the same around a text that is too wide
constexpr qreal kLeading = 1.5;    // chart pixels of a line above and below its letters
constexpr qreal kTooHigh = 1.1;    // as a multiple of the box; below it only the space under the letters is cut off
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

// A box that was fitted to its text on another system may be a little too narrow here. The text is condensed then, because wrapping
// would hide its last word. Returns the width of the text.
qreal FitTo(TextLayout& pobjLayout, qreal psngWidth) {
  LayOut(pobjLayout, -1, Qt::AlignLeft, QTextOption::NoWrap);
  const QSizeF natural = pobjLayout.Text.size();
  const int stretch = natural.width() > 0 ? static_cast<int>(100 * (psngWidth - 2 * kTight) / natural.width()) : 100;
  if (natural.width() <= psngWidth + kSlack) {
    pobjLayout.Inset.setX(std::clamp((psngWidth - natural.width()) / 2, 0.0, kPadding));
    const qreal inner = std::max(psngWidth - 2 * pobjLayout.Inset.x(), natural.width());
    LayOut(pobjLayout, inner, pobjLayout.Alignment, QTextOption::NoWrap);
    return natural.width();
  }
  if (stretch >= kNarrowest) {
    pobjLayout.Font.setStretch(stretch - 1);
    pobjLayout.Inset.setX(kTight);
    LayOut(pobjLayout, psngWidth - 2 * kTight + kSlack, pobjLayout.Alignment, QTextOption::NoWrap);
    return psngWidth - 2 * kTight;
  }
  pobjLayout.Inset.setX(psngWidth > 6 * kPadding ? kPadding : 0);
  LayOut(pobjLayout, std::max(psngWidth - 2 * pobjLayout.Inset.x(), kSmallestBox), pobjLayout.Alignment, QTextOption::WordWrap);
  return pobjLayout.Text.textWidth();
}

// Ends the last line that fits with an ellipsis, to show that there is more. A box lower than a line shows the upper part of it.
void CutTo(TextLayout& pobjLayout, qreal psngHeight) {
  const QString text = pobjLayout.Text.text();
  const qreal width = pobjLayout.Text.textWidth();
  QTextLayout lines(text, pobjLayout.Font);
  lines.setTextOption(pobjLayout.Text.textOption());
  lines.beginLayout();
  qreal bottom = 0;
  int last = 0;
  for (QTextLine line = lines.createLine(); line.isValid(); line = lines.createLine()) {
    line.setLineWidth(width);
    bottom += line.height();
    if (bottom > psngHeight + kSlack) break;
    last = line.textStart();
  }
  lines.endLayout();
  if (lines.lineAt(0).height() > psngHeight + kSlack) return;
  const QString rest = text.mid(last).replace(QChar::LineSeparator, ' ') + QChar(0x2026);
  pobjLayout.Text.setText(text.left(last) + QFontMetricsF(pobjLayout.Font).elidedText(rest, Qt::ElideRight, width));
  pobjLayout.Text.prepare({}, pobjLayout.Font);
}

QRectF ExtentOf(const TextLayout& pobjLayout, qreal psngWidth, const QRectF& pobjBox) {
  const qreal spare = pobjLayout.Text.textWidth() - psngWidth;
  const qreal shift = pobjLayout.Alignment == Qt::AlignRight ? spare : pobjLayout.Alignment == Qt::AlignHCenter ? spare / 2 : 0;
  const QRectF lines(pobjLayout.Inset + QPointF(shift, 0), QSizeF(psngWidth, pobjLayout.Text.size().height()));
  return lines.adjusted(0, kLeading, 0, -kLeading).intersected(pobjBox);
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
  const qreal extent = FitTo(layout, width);
  if (layout.Text.size().height() > height * kTooHigh + kSlack) CutTo(layout, height);
  const QSizeF size = layout.Text.size();
  layout.Inset.setY(std::clamp((height - size.height()) / 2, 0.0, kPadding));
  layout.IsClipped = size.width() > width + 2 * kSlack || size.height() > height * kTooHigh + kSlack;
  layout.Extent = ExtentOf(layout, extent, QRectF(0, 0, width, height));
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

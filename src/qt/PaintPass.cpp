#include "qt/PaintPass.h"

#include <QPaintEngine>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <utility>

#include "chart/Image.h"
#include "chart/Label.h"
#include "chart/Line.h"
#include "qt/ChartPainter.h"
#include "qt/Conversions.h"
#include "qt/LabelPainter.h"

namespace vantrel {

namespace {

constexpr double kVisible = 1.25;                // device pixels; smaller pictures are left out
constexpr double kRenderedPixels = 1000 * 1000;  // larger pictures are not kept as pixels
constexpr QColor kSelection(0x1d, 0x4e, 0xd8);
constexpr int kDark = 90;  // of 255
constexpr QColor kLightInk(0xe2, 0xe8, 0xf0);
constexpr QColor kUnknownPicture(0x94, 0xa3, 0xb8);

bool HoldsVectors(const QPainter& pobjPainter) {
  const auto type = pobjPainter.paintEngine()->type();
  return type != QPaintEngine::Raster && type != QPaintEngine::OpenGL2 && type != QPaintEngine::X11;
}

// Handles come from the chart without a picture of their own.
std::shared_ptr<const Picture> PictureOf(const Image& pobjImage) {
  static const ImageList designer = ImageList::VantrelImages();
  static const auto handle = designer.Find("Handle");
  if (pobjImage.Picture()) return pobjImage.Picture();
  return pobjImage.Family() == ctlHandleFamily ? handle : nullptr;
}

void PaintOutline(QPainter& pobjPainter, const QRectF& pobjBox, double pdblWidth, const QColor& pobjColor) {
  const double half = pdblWidth / 2;
  pobjPainter.setPen(QPen(pobjColor, pdblWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  pobjPainter.setBrush(Qt::NoBrush);
  pobjPainter.drawRect(pobjBox.adjusted(half, half, -half, -half));
}

}  // namespace

PaintPass::PaintPass(QPainter& pobjPainter, Pictures& pobjPictures, TextLayouts& pobjLayouts, double pdblZoom, Color plngBackColor)
    : mobjPainter(pobjPainter),
      mobjPictures(pobjPictures),
      mobjLayouts(pobjLayouts),
      mblnVectors(HoldsVectors(pobjPainter)),
      mobjTargetUnits(pobjPainter.worldTransform()),
      mobjChartUnits(QTransform::fromScale(pdblZoom, pdblZoom) * pobjPainter.worldTransform()),
      mdblZoom(pdblZoom),
      mdblScale(pdblZoom),
      mdblX(0),
      mdblY(0),
      mlngBackColor(plngBackColor) {
  mobjPainter.save();
  mobjPainter.setRenderHint(QPainter::Antialiasing);
  if (mblnVectors) return;
  const QTransform device = mobjPainter.deviceTransform();
  mobjTargetUnits = device.inverted() * mobjPainter.worldTransform();
  mdblScale = pdblZoom * device.m11();
  mdblX = device.dx();
  mdblY = device.dy();
}

PaintPass::~PaintPass() {
  FlushLines();
  mobjPainter.restore();
}

void PaintPass::Use(Units pUnits) {
  if (std::exchange(mUnits, pUnits) == pUnits) return;
  mobjPainter.setWorldTransform(pUnits == kChart ? mobjChartUnits : mobjTargetUnits);
}

QRectF PaintPass::Target(const Rect& pobjRect) const {
  const double scale = mdblScale / kTwipsPerPixel;
  const double left = pobjRect.Left * scale + mdblX, top = pobjRect.Top * scale + mdblY;
  const double width = (pobjRect.Right - pobjRect.Left) * scale, height = (pobjRect.Bottom - pobjRect.Top) * scale;
  if (mblnVectors) return {left, top, width, height};
  return {std::round(left), std::round(top), std::round(width), std::round(height)};
}

void PaintPass::Paint(const Element& pobjElement) {
  if (pobjElement.Family() == ctlLineFamily) return PaintLine(static_cast<const Line&>(pobjElement));
  FlushLines();
  if (pobjElement.Family() == ctlImageFamily || pobjElement.Family() == ctlHandleFamily) {
    PaintImage(static_cast<const Image&>(pobjElement));
  } else {
    PaintLabel(static_cast<const Label&>(pobjElement));
  }
}

void PaintPass::PaintImage(const Image& pobjImage) {
  const QRectF target = Target(pobjImage.Bounds());
  if (!mblnVectors && target.width() < kVisible) return;
  Use(kTarget);
  if (const auto picture = PictureOf(pobjImage)) PaintPicture(picture, target);
  if (pobjImage.BorderStyle() != 0) PaintOutline(mobjPainter, target, std::max(1.0, std::round(mdblScale)), kSelection);
}

void PaintPass::PaintPicture(const std::shared_ptr<const Picture>& pobjPicture, const QRectF& pobjTarget) {
  bool isKnown = false;
  if (mblnVectors || pobjTarget.width() * pobjTarget.height() > kRenderedPixels) {
    isKnown = Pictures::Render(mobjPainter, pobjPicture->Key, pobjTarget);
  } else {
    const QPixmap& pixmap = mobjPictures.Pixmap(pobjPicture, pobjTarget.size().toSize());
    isKnown = !pixmap.isNull();
    if (isKnown) mobjPainter.drawPixmap(pobjTarget.topLeft().toPoint(), pixmap);
  }
  if (!isKnown) PaintOutline(mobjPainter, pobjTarget, std::max(1.0, std::round(mdblScale)), kUnknownPicture);
}

void PaintPass::PaintLabel(const Label& pobjLabel) {
  if (pobjLabel.BackStyle() == 1 || pobjLabel.BorderStyle() != 0 || pobjLabel.Appearance() == 1) {
    Use(kTarget);
    PaintLabelBox(mobjPainter, pobjLabel, Target(pobjLabel.Bounds()), mdblScale);
  }
  const bool isLegible = mblnVectors || PixelSize(pobjLabel.Font()) * mdblZoom >= ChartPainter::kLegible;
  if (isLegible && !pobjLabel.Caption().empty()) PaintText(pobjLabel);
}

void PaintPass::PaintText(const Label& pobjLabel) {
  const TextLayout& layout = mobjLayouts.Of(pobjLabel);
  Use(kChart);
  const QColor color = Ink(pobjLabel.ForeColor(), pobjLabel.BackStyle() == 1 ? pobjLabel.BackColor() : mlngBackColor);
  if (mobjPainter.pen().color() != color || mobjPainter.pen().style() == Qt::NoPen) mobjPainter.setPen(color);
  if (mobjPainter.font() != layout.Font) mobjPainter.setFont(layout.Font);
  const QRectF box = ToPixels(pobjLabel.Bounds());
  if (!layout.IsClipped) return PaintLayout(layout, box);
  mobjPainter.save();
  mobjPainter.setClipRect(box, Qt::IntersectClip);
  PaintLayout(layout, box);
  mobjPainter.restore();
}

void PaintPass::PaintLayout(const TextLayout& pobjLayout, const QRectF& pobjBox) {
  const QPointF at = pobjBox.topLeft() + pobjLayout.Inset;
  if (!pobjLayout.IsDecorated) return mobjPainter.drawStaticText(at, pobjLayout.Text);
  const QRectF box(at, QSizeF(pobjLayout.Text.textWidth() + 0.5, pobjBox.height()));
  const int wrap = pobjLayout.Text.textOption().wrapMode() == QTextOption::WordWrap ? Qt::TextWordWrap : 0;
  mobjPainter.drawText(box, static_cast<int>(pobjLayout.Alignment) | wrap | Qt::TextDontClip, pobjLayout.Text.text());
}

// Black is what lines and texts have unless somebody chose a colour; on a dark chart it turns light, or nothing could be read.
QColor PaintPass::Ink(Color plngColor, Color plngBackground) {
  if (plngColor == kBlack && qGray(ToQColor(plngBackground).rgb()) < kDark) return kLightInk;
  return ToQColor(plngColor);
}

void PaintPass::PaintLine(const Line& pobjLine) {
  const double width = std::max(mblnVectors ? 0.0 : 1.0, pobjLine.BorderWidth() * mdblScale);
  const QColor color = Ink(pobjLine.BorderColor(), mlngBackColor);
  if (width != mdblLineWidth || color != mobjLineColor) {
    FlushLines();
    mdblLineWidth = width;
    mobjLineColor = color;
  }
  const double scale = mdblScale / kTwipsPerPixel;
  const QLineF line(pobjLine.X1() * scale + mdblX, pobjLine.Y1() * scale + mdblY, pobjLine.X2() * scale + mdblX,
                    pobjLine.Y2() * scale + mdblY);
  mcolLines.push_back(mblnVectors ? line : Snapped(line, width));
}

// Level and upright lines are moved onto whole pixels: between two rows they would be a grey ribbon.
QLineF PaintPass::Snapped(QLineF pobjLine, double pdblWidth) const {
  const double shift = std::lround(pdblWidth) % 2 == 1 ? 0.5 : 0;
  const auto snap = [shift](double pdblAt) { return std::round(pdblAt - shift) + shift; };
  if (std::abs(pobjLine.dy()) < 0.5) {
    const double y = snap(pobjLine.y1());
    return {pobjLine.x1(), y, pobjLine.x2(), y};
  }
  if (std::abs(pobjLine.dx()) < 0.5) {
    const double x = snap(pobjLine.x1());
    return {x, pobjLine.y1(), x, pobjLine.y2()};
  }
  return pobjLine;
}

void PaintPass::FlushLines() {
  if (mcolLines.empty()) return;
  Use(kTarget);
  const Qt::PenCapStyle cap = mdblLineWidth > 1.5 ? Qt::RoundCap : Qt::FlatCap;
  mobjPainter.setPen(QPen(mobjLineColor, mdblLineWidth, Qt::SolidLine, cap));
  mobjPainter.drawLines(mcolLines.data(), static_cast<int>(mcolLines.size()));
  mcolLines.clear();
}

}  // namespace vantrel

#include "qt/PaintPass.h"

#include <QPaintEngine>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <utility>

#include "chart/Image.h"
#include "chart/Label.h"
#include "chart/Line.h"
#include "qt/ChartInk.h"
#include "qt/ChartPainter.h"
#include "qt/Conversions.h"
#include "qt/LabelPainter.h"

namespace vantrel {

namespace {

constexpr double kVisible = 1.25;                // device pixels; smaller pictures are left out
constexpr double kRenderedPixels = 1000 * 1000;  // larger pictures are not kept as pixels
constexpr QColor kUnknownPicture(0x64, 0x74, 0x8b);
constexpr double kVeiledZoom = 0.2;  // below it, only text so large is legible that no line hides it
constexpr double kConnector = 8;     // chart pixels, a side
constexpr int kVeil = 185;           // of 255: a line shows faintly through it

bool HoldsVectors(const QPainter& pobjPainter) {
  const auto type = pobjPainter.paintEngine()->type();
  return type != QPaintEngine::Raster && type != QPaintEngine::OpenGL2 && type != QPaintEngine::X11;
}

// The chart gives handles no picture of their own.
const std::shared_ptr<const Picture>& PictureOf(const Image& pobjImage) {
  static const auto handle = ImageList::VantrelImages().Find("Handle");
  return pobjImage.Picture() || pobjImage.Family() != ctlHandleFamily ? pobjImage.Picture() : handle;
}

void PaintOutline(QPainter& pobjPainter, const QRectF& pobjBox, double pdblWidth, const QColor& pobjColor) {
  const double half = pdblWidth / 2;
  pobjPainter.setPen(QPen(pobjColor, pdblWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  pobjPainter.setBrush(Qt::NoBrush);
  pobjPainter.drawRect(pobjBox.adjusted(half, half, -half, -half));
}

// A thin frame with filled corners: visible round any picture, and not by colour alone. The hollow squares of the focus frame can
// be pulled; these cannot.
void PaintSelectionMark(QPainter& pobjPainter, const QRectF& pobjBox, double pdblScale, const QColor& pobjColor) {
  PaintOutline(pobjPainter, pobjBox, std::max(1.0, std::round(pdblScale)), pobjColor);
  const double side = std::min(std::max(3.0, std::round(6 * pdblScale)), std::round(pobjBox.width() / 3));
  for (const double x : {pobjBox.left(), pobjBox.right() - side}) {
    for (const double y : {pobjBox.top(), pobjBox.bottom() - side}) pobjPainter.fillRect(QRectF(x, y, side, side), pobjColor);
  }
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
      mblnOnDark(IsDark(ToQColor(plngBackColor))),
      mobjVeil(ToQColor(plngBackColor)) {
  mobjVeil.setAlpha(kVeil);
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

// Rounds each edge by itself, so that what touches on the chart touches on the screen at every zoom.
QRectF PaintPass::Target(const Rect& pobjRect) const {
  const double scale = mdblScale / kTwipsPerPixel;
  const QPointF from(pobjRect.Left * scale + mdblX, pobjRect.Top * scale + mdblY);
  const QPointF to(pobjRect.Right * scale + mdblX, pobjRect.Bottom * scale + mdblY);
  if (mblnVectors) return {from, to};
  return {QPointF(std::round(from.x()), std::round(from.y())), QPointF(std::round(to.x()), std::round(to.y()))};
}

// The template line is the rubber band of an arc that is being drawn. It lies in front of the pictures.
bool PaintPass::IsArc(const Element& pobjElement) { return pobjElement.Family() == ctlLineFamily && pobjElement.Index() != 0; }

void PaintPass::Paint(const std::vector<Element*>& pcolElements) {
  std::vector<const Element*> others;
  others.reserve(pcolElements.size());
  for (const Element* element : pcolElements) {
    if (IsArc(*element)) {
      PaintLine(static_cast<const Line&>(*element));
    } else {
      others.push_back(element);
    }
  }
  FlushLines();
  if (mblnVectors || mdblZoom >= kVeiledZoom) {
    for (const Element* element : others) {
      if (element->Family() == ctlLabelFamily || element->Family() == lblCountFamily) PaintVeil(static_cast<const Label&>(*element));
    }
  }
  for (const Element* element : others) PaintElement(*element);
}

void PaintPass::PaintElement(const Element& pobjElement) {
  if (pobjElement.Family() == ctlLineFamily) return PaintLine(static_cast<const Line&>(pobjElement));
  FlushLines();
  if (pobjElement.Family() == ctlImageFamily || pobjElement.Family() == ctlHandleFamily) {
    PaintImage(static_cast<const Image&>(pobjElement));
  } else {
    PaintLabel(static_cast<const Label&>(pobjElement));
  }
}

void PaintPass::PaintVeil(const Label& pobjLabel) {
  if (pobjLabel.BackStyle() == 1 || !ShowsText(pobjLabel)) return;
  const QRectF text = mobjLayouts.Of(pobjLabel).Extent;
  const float left = pobjLabel.Left() + static_cast<float>(text.left()) * kTwipsPerPixel;
  const float top = pobjLabel.Top() + static_cast<float>(text.top()) * kTwipsPerPixel;
  Use(kTarget);
  mobjPainter.fillRect(Target({left, top, left + static_cast<float>(text.width()) * kTwipsPerPixel,
                               top + static_cast<float>(text.height()) * kTwipsPerPixel}),
                       mobjVeil);
}

void PaintPass::PaintImage(const Image& pobjImage) {
  if (!mblnVectors && pobjImage.Width() * mdblScale < kVisible * kTwipsPerPixel) return;
  const QRectF target = Target(pobjImage.Bounds());
  Use(kTarget);
  if (const auto& picture = PictureOf(pobjImage)) PaintPicture(picture, target);
  if (pobjImage.BorderStyle() != 0) PaintSelectionMark(mobjPainter, target, mdblScale, mblnOnDark ? kLightAccent : kAccent);
}

void PaintPass::PaintPicture(const std::shared_ptr<const Picture>& pobjPicture, const QRectF& pobjTarget) {
  bool isKnown = false;
  if (mblnVectors || pobjTarget.width() * pobjTarget.height() > kRenderedPixels) {
    isKnown = Pictures::Render(mobjPainter, pobjPicture->Key, pobjTarget, mblnOnDark);
  } else {
    const QPixmap& pixmap = mobjPictures.Pixmap(pobjPicture, pobjTarget.size().toSize(), mblnOnDark);
    isKnown = !pixmap.isNull();
    if (isKnown) mobjPainter.drawPixmap(pobjTarget.topLeft().toPoint(), pixmap);
  }
  if (!isKnown) PaintOutline(mobjPainter, pobjTarget, std::max(1.0, std::round(mdblScale)), kUnknownPicture);
}

void PaintPass::PaintLabel(const Label& pobjLabel) {
  if (pobjLabel.BackStyle() == 1 || pobjLabel.BorderStyle() != 0 || pobjLabel.Appearance() == 1) {
    Use(kTarget);
    PaintLabelBox(mobjPainter, pobjLabel, Target(pobjLabel.Bounds()), mdblScale, IsOnDark(pobjLabel));
  }
  if (ShowsText(pobjLabel)) PaintText(pobjLabel);
  if (!pobjLabel.Marked()) return;
  Use(kTarget);
  PaintSelectionMark(mobjPainter, Target(pobjLabel.Bounds()), mdblScale, mblnOnDark ? kLightAccent : kAccent);
}

bool PaintPass::IsOnDark(const Label& pobjLabel) const {
  return pobjLabel.BackStyle() == 1 ? IsDark(ToQColor(pobjLabel.BackColor())) : mblnOnDark;
}

bool PaintPass::ShowsText(const Label& pobjLabel) const {
  if (pobjLabel.Caption().empty()) return false;
  return mblnVectors || PixelSize(pobjLabel.Font()) * mdblZoom >= ChartPainter::kLegible;
}

void PaintPass::PaintText(const Label& pobjLabel) {
  const TextLayout& layout = mobjLayouts.Of(pobjLabel);
  Use(kChart);
  const QColor color = InkOn(pobjLabel.ForeColor(), IsOnDark(pobjLabel));
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

void PaintPass::PaintLine(const Line& pobjLine) {
  const double width = std::max(mblnVectors ? 0.0 : 1.0, pobjLine.BorderWidth() * mdblScale);
  const QColor color = pobjLine.BorderColor() == kBlack && !mblnOnDark ? kInk : InkOn(pobjLine.BorderColor(), mblnOnDark);
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

// Moves level and upright lines onto whole pixels, where they are sharp: those in the middle of the connector at their end. Extends them
// to whole pixels under what they join.
QLineF PaintPass::Snapped(QLineF pobjLine, double pdblWidth) const {
  const double shift = std::lround(pdblWidth) % 2 == 1 ? 0.5 : 0, half = kConnector / 2 * mdblScale;
  const bool isFar = 2 * half < kVisible;  // connectors are not painted
  const auto snap = [shift, half, isFar](double pdblAt) {
    if (isFar) return std::round(pdblAt - shift) + shift;
    const double middle = (std::round(pdblAt - half) + std::round(pdblAt + half)) / 2;
    return std::floor(middle - shift + 0.5) + shift;
  };
  const auto along = [isFar](double pdblFrom, double pdblTo) {
    if (isFar) return std::pair(pdblFrom, pdblTo);
    return std::pair(std::floor(std::min(pdblFrom, pdblTo)), std::ceil(std::max(pdblFrom, pdblTo)));
  };
  if (std::abs(pobjLine.dy()) < 0.5) {
    const auto [from, to] = along(pobjLine.x1(), pobjLine.x2());
    const double y = snap(pobjLine.y1());
    return {from, y, to, y};
  }
  if (std::abs(pobjLine.dx()) < 0.5) {
    const auto [from, to] = along(pobjLine.y1(), pobjLine.y2());
    const double x = snap(pobjLine.x1());
    return {x, from, x, to};
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

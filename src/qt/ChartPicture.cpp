#include "qt/ChartPicture.h"

#include <QFileInfo>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>

#include "chart/ChartSurface.h"
#include "qt/ChartPainter.h"
#include "qt/ContentBounds.h"
#include "qt/Conversions.h"
#include "util/Error.h"

namespace vantrel {

namespace {

constexpr float kMargin = 12 * kTwipsPerPixel;
constexpr int kLargestPng = 16000;  // pixels a side
constexpr std::int32_t kCannotWrite = 75;
constexpr double kChartDpi = 96;
constexpr double kPointsPerPixel = 72 / kChartDpi;

[[noreturn]] void Refuse(std::int32_t plngNumber, const QString& pstrPath, const QString& pstrReason) {
  throw Error(plngNumber, (pstrPath + ": " + pstrReason).toStdString());
}

struct Canvas {
  const ChartSurface& Surface;
  Rect Area;
  double Zoom;
  QString Path;

  QSize Size() const { return {Pixels(Area.Right - Area.Left), Pixels(Area.Bottom - Area.Top)}; }
  int Pixels(float psngTwips) const { return std::max(1, static_cast<int>(std::ceil(psngTwips / kTwipsPerPixel * Zoom))); }

  // `pdblUnit`: the painter's units to a pixel of the picture.
  void Paint(QPaintDevice& pobjDevice, double pdblUnit) const {
    QPainter painter(&pobjDevice);
    painter.scale(pdblUnit, pdblUnit);
    painter.fillRect(QRectF(QPointF(), Size()), ToQColor(Surface.BackColor()));
    painter.translate(-Area.Left / kTwipsPerPixel * Zoom, -Area.Top / kTwipsPerPixel * Zoom);
    ChartPainter().Paint(painter, Surface, Area, Zoom);
  }
};

void WritePng(const Canvas& pobjCanvas, QIODevice& pobjFile) {
  const QSize size = pobjCanvas.Size();
  if (size.width() > kLargestPng || size.height() > kLargestPng) {
    Refuse(vntErrOverflow, pobjCanvas.Path,
           QString("the picture would have %1 x %2 pixels; choose a smaller zoom").arg(size.width()).arg(size.height()));
  }
  QImage image(size, QImage::Format_RGB32);
  if (image.isNull()) Refuse(vntErrOverflow, pobjCanvas.Path, "there is not enough memory for the picture");
  pobjCanvas.Paint(image, 1);
  image.save(&pobjFile, "PNG");
}

void WriteSvg(const Canvas& pobjCanvas, QIODevice& pobjFile) {
  QSvgGenerator svg;
  svg.setOutputDevice(&pobjFile);
  svg.setSize(pobjCanvas.Size());
  svg.setViewBox(QRect(QPoint(), pobjCanvas.Size()));
  svg.setResolution(FontDpi());
  svg.setTitle("Workflow");
  pobjCanvas.Paint(svg, 1);
}

void WritePdf(const Canvas& pobjCanvas, QIODevice& pobjFile) {
  QPdfWriter pdf(&pobjFile);
  pdf.setResolution(FontDpi());
  pdf.setPageSize(QPageSize(QSizeF(pobjCanvas.Size()) * kPointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
  pdf.setPageMargins(QMarginsF());
  pdf.setTitle("Workflow");
  pobjCanvas.Paint(pdf, FontDpi() / kChartDpi);
}

auto WriterFor(const QString& pstrPath) {
  const QString extension = QFileInfo(pstrPath).suffix().toLower();
  if (extension == "png") return WritePng;
  if (extension == "svg") return WriteSvg;
  if (extension == "pdf") return WritePdf;
  Refuse(vntErrInvalidCall, pstrPath, "a picture's name ends in .png, .svg or .pdf");
}

Rect AreaOf(const ChartSurface& pobjSurface) {
  const Rect content = ContentBounds(pobjSurface).value_or(Rect());
  return {content.Left - kMargin, content.Top - kMargin, content.Right + kMargin, content.Bottom + kMargin};
}

}  // namespace

void WriteChart(const ChartSurface& pobjSurface, const std::string& pstrPath, double pdblZoom) {
  const QString path = ToQString(pstrPath);
  const auto write = WriterFor(path);
  if (!(pdblZoom > 0)) Refuse(vntErrInvalidCall, path, "the zoom of a picture is above 0");
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) Refuse(kCannotWrite, path, "cannot be written: " + file.errorString());
  write({pobjSurface, AreaOf(pobjSurface), pdblZoom, path}, file);
  if (!file.commit()) Refuse(kCannotWrite, path, "cannot be written: " + file.errorString());
}

}  // namespace vantrel

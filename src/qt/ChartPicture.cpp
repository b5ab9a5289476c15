#include "qt/ChartPicture.h"

#include <QBuffer>
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
#include "qt/Conversions.h"
#include "util/Error.h"

namespace vantrel {

namespace {

constexpr float kMargin = 12 * kTwipsPerPixel;
constexpr double kLargestPng = 16000;        // pixels a side
constexpr double kLargestVectors = 1000000;  // viewers fail beyond it, and so does the precision of the formats later
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

  double Width() const { return Pixels(Area.Right - Area.Left); }
  double Height() const { return Pixels(Area.Bottom - Area.Top); }
  double Pixels(float psngTwips) const { return std::max(1.0, std::ceil(psngTwips / kTwipsPerPixel * Zoom)); }
  // Only after CheckSize.
  QSize Size() const { return {static_cast<int>(Width()), static_cast<int>(Height())}; }

  // `pdblUnit`: units of the painter for one pixel of the picture.
  void Paint(QPaintDevice& pobjDevice, double pdblUnit) const {
    QPainter painter(&pobjDevice);
    painter.scale(pdblUnit, pdblUnit);
    painter.fillRect(QRectF(QPointF(), Size()), ToQColor(Surface.BackColor()));
    painter.translate(-Area.Left / kTwipsPerPixel * Zoom, -Area.Top / kTwipsPerPixel * Zoom);
    ChartPainter().Paint(painter, Surface, Area, Zoom);
  }
};

// Rounds down to two digits.
double RoundedDown(double pdblNumber) {
  const double step = std::pow(10, std::floor(std::log10(pdblNumber)) - 1);
  return std::floor(pdblNumber / step) * step;
}

void CheckSize(const Canvas& pobjCanvas, double pdblLargest) {
  const double largest = std::max(pobjCanvas.Width(), pobjCanvas.Height());
  if (largest <= pdblLargest) return;
  const auto text = [](double pdblNumber) { return QString::number(pdblNumber, 'g', 10); };
  Refuse(vntErrOverflow, pobjCanvas.Path,
         QString("the picture would have %1 x %2 pixels, and %3 a side is the most: zoom %4 fits")
             .arg(text(pobjCanvas.Width()), text(pobjCanvas.Height()), text(pdblLargest),
                  text(RoundedDown(pobjCanvas.Zoom * pdblLargest / largest))));
}

void WritePng(const Canvas& pobjCanvas, QIODevice& pobjFile) {
  QImage image(pobjCanvas.Size(), QImage::Format_RGB32);
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

struct Format {
  void (*Write)(const Canvas&, QIODevice&);
  double LargestSide;
};

Format FormatFor(const QString& pstrPath) {
  const QString extension = QFileInfo(pstrPath).suffix().toLower();
  if (extension == "png") return {WritePng, kLargestPng};
  if (extension == "svg") return {WriteSvg, kLargestVectors};
  if (extension == "pdf") return {WritePdf, kLargestVectors};
  Refuse(vntErrInvalidCall, pstrPath, "a picture's name ends in .png, .svg or .pdf");
}

Rect AreaOf(const ChartSurface& pobjSurface) {
  const Rect content = pobjSurface.VisibleBounds().value_or(Rect());
  return {content.Left - kMargin, content.Top - kMargin, content.Right + kMargin, content.Bottom + kMargin};
}

}  // namespace

void WriteChart(const ChartSurface& pobjSurface, const std::string& pstrPath, double pdblZoom) {
  const QString path = ToQString(pstrPath);
  if (path.toStdString() != pstrPath) Refuse(vntErrInvalidCall, path, "the name is not UTF-8");
  const Format format = FormatFor(path);
  if (!(pdblZoom > 0) || !std::isfinite(pdblZoom)) Refuse(vntErrInvalidCall, path, "the zoom of a picture is a number above 0");
  const Canvas canvas{pobjSurface, AreaOf(pobjSurface), pdblZoom, path};
  CheckSize(canvas, format.LargestSide);
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) Refuse(kCannotWrite, path, "cannot be written: " + file.errorString());
  // Qt's picture writers ignore write errors, so a full disk would leave part of a picture: write to memory first.
  QBuffer picture;
  picture.open(QIODevice::WriteOnly);
  format.Write(canvas, picture);
  const bool isWritten = file.write(picture.data()) == picture.size() && file.flush();
  if (!isWritten || !file.commit()) Refuse(kCannotWrite, path, "cannot be written: " + file.errorString());
}

}  // namespace vantrel

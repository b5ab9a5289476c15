// One run over the elements of a chart.
#pragma once

#include <QLineF>
#include <QPainter>
#include <QPen>
#include <QRectF>
#include <QTransform>
#include <vector>

#include "chart/Geometry.h"
#include "qt/Pictures.h"
#include "qt/TextLayouts.h"
#include "util/Color.h"

namespace vantrel {

class Element;
class Image;
class Label;
class Line;

/// Belongs to ChartPainter. Boxes, pictures and lines are painted in units of the target (device pixels, or the units of a file
/// of vectors), texts in chart pixels under a scaled painter, so that they break alike at every zoom.
class PaintPass {
 public:
  PaintPass(QPainter& pobjPainter, Pictures& pobjPictures, TextLayouts& pobjLayouts, double pdblZoom, Color plngBackColor);
  ~PaintPass();
  PaintPass(const PaintPass&) = delete;
  PaintPass& operator=(const PaintPass&) = delete;

  void Paint(const Element& pobjElement);

 private:
  enum Units { kNone, kTarget, kChart };

  void PaintImage(const Image& pobjImage);
  void PaintPicture(const std::shared_ptr<const Picture>& pobjPicture, const QRectF& pobjTarget);
  void PaintLabel(const Label& pobjLabel);
  void PaintText(const Label& pobjLabel);
  void PaintLayout(const TextLayout& pobjLayout, const QRectF& pobjBox);
  void PaintLine(const Line& pobjLine);
  QLineF Snapped(QLineF pobjLine, double pdblWidth) const;
  void FlushLines();
  static QColor Ink(Color plngColor, Color plngBackground);
  void Use(Units pUnits);
  QRectF Target(const Rect& pobjRect) const;

  QPainter& mobjPainter;
  Pictures& mobjPictures;
  TextLayouts& mobjLayouts;
  bool mblnVectors;
  QTransform mobjTargetUnits, mobjChartUnits;
  double mdblZoom;
  double mdblScale, mdblX, mdblY;  // target units from chart pixels
  Units mUnits = kNone;
  Color mlngBackColor;
  QColor mobjLineColor;
  double mdblLineWidth = 0;
  std::vector<QLineF> mcolLines;  // of one pen, not painted yet
};

}  // namespace vantrel

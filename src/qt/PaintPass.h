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

/// Belongs to ChartPainter. Paints three layers: arcs; a veil under each text, so that no line runs through a caption; everything else
/// from back to front. The layer of an element depends on the element alone, so that a part of the chart painted by itself looks the
/// same. Boxes, pictures and lines are painted in units of the target (device pixels, or the units of a vector file). Texts are painted in
/// chart pixels with a scaled painter, so that their lines break alike at every zoom.
class PaintPass {
 public:
  PaintPass(QPainter& pobjPainter, Pictures& pobjPictures, TextLayouts& pobjLayouts, double pdblZoom, Color plngBackColor);
  ~PaintPass();
  PaintPass(const PaintPass&) = delete;
  PaintPass& operator=(const PaintPass&) = delete;

  /// From back to front.
  void Paint(const std::vector<Element*>& pcolElements);

 private:
  enum Units { kNone, kTarget, kChart };

  static bool IsArc(const Element& pobjElement);
  void PaintElement(const Element& pobjElement);
  void PaintVeil(const Label& pobjLabel);
  void PaintImage(const Image& pobjImage);
  void PaintPicture(const std::shared_ptr<const Picture>& pobjPicture, const QRectF& pobjTarget);
  void PaintLabel(const Label& pobjLabel);
  bool IsOnDark(const Label& pobjLabel) const;
  bool ShowsText(const Label& pobjLabel) const;
  void PaintText(const Label& pobjLabel);
  void PaintLayout(const TextLayout& pobjLayout, const QRectF& pobjBox);
  void PaintLine(const Line& pobjLine);
  QLineF Snapped(QLineF pobjLine, double pdblWidth) const;
  void FlushLines();
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
  bool mblnOnDark;
  QColor mobjVeil;
  QColor mobjLineColor;
  double mdblLineWidth = 0;
  std::vector<QLineF> mcolLines;  // of one pen, not painted yet
};

}  // namespace vantrel

// Paints charts.
#pragma once

#include "chart/Geometry.h"
#include "qt/Pictures.h"
#include "qt/TextLayouts.h"

class QPainter;

namespace vantrel {

class ChartSurface;

/// Paints the elements of a chart surface with any QPainter: on a screen, an image, an SVG or PDF file. Keeps rendered pictures and
/// laid-out texts for the next call, so a view should keep its painter. Needs a QGuiApplication.
class ChartPainter {
 public:
  /// Leaves out smaller text (device-independent pixels from line to line) on screens and images: nobody can read it, and it costs
  /// most of the time. Vector files hold all text.
  static constexpr double kLegible = 3.7;

  /// Paints what touches the area (twips), without the background: first the arcs, then the rest from back to front. On a dark ground it
  /// paints the designer's pictures, black lines and black text light. One chart pixel (15 twips) becomes `pdblZoom` units of the painter,
  /// and the chart's origin is the painter's. The painter may be translated and scaled, not rotated. On pixel devices pictures and edges
  /// lie on whole pixels. Paints nothing while the surface is invisible.
  void Paint(QPainter& pobjPainter, const ChartSurface& pobjSurface, const Rect& pobjArea, double pdblZoom);

 private:
  Pictures mPictures;
  TextLayouts mLayouts;
};

}  // namespace vantrel

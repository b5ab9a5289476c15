// Paints charts.
#pragma once

#include "chart/Geometry.h"
#include "qt/Pictures.h"
#include "qt/TextLayouts.h"

class QPainter;

namespace vantrel {

class ChartSurface;

/// Paints the elements of a chart surface with any painter: a screen's, an image's, an SVG or PDF file's. Keeps rendered pictures
/// and laid-out texts from one call to the next, so a view should keep its painter. Needs a QGuiApplication.
class ChartPainter {
 public:
  /// On screens and images, smaller text (device-independent pixels from line to line) is left out: nobody can read it, and it is
  /// what takes most of the time. Files of vectors hold all of it.
  static constexpr double kLegible = 3.7;

  /// Paints what touches the area (twips), without the background: arcs behind all else, as they are for the mouse, the rest from
  /// back to front. On a dark ground the designer's pictures, and lines and texts that are black, are painted light. One chart pixel (15
  /// twips) becomes `pdblZoom` of the painter's units, the chart's origin is the painter's. The painter may be moved and scaled, not
  /// rotated; on pixel devices pictures and edges come to lie on whole pixels. Nothing while the surface is invisible.
  void Paint(QPainter& pobjPainter, const ChartSurface& pobjSurface, const Rect& pobjArea, double pdblZoom);

 private:
  Pictures mPictures;
  TextLayouts mLayouts;
};

}  // namespace vantrel

// From the chart to the window and back.
#pragma once

#include <QPointF>
#include <QRectF>
#include <cmath>

#include "chart/Geometry.h"

namespace vantrel {

/// Converts between chart twips and device-independent pixels of a view. Shifts the chart by whole device pixels, so that pictures keep
/// their distances while the user scrolls.
struct ViewTransform {
  double Zoom = 1;
  float OriginX = 0, OriginY = 0;  ///< the chart's point in the view's corner, twips
  double Ratio = 1;                ///< device pixels to a device-independent one

  double Scale() const { return Zoom / kTwipsPerPixel; }
  QPointF Shift() const { return {Whole(-OriginX * Scale()), Whole(-OriginY * Scale())}; }
  QPointF ToView(float psngX, float psngY) const { return QPointF(psngX, psngY) * Scale() + Shift(); }
  QRectF ToView(const Rect& pobjRect) const { return {ToView(pobjRect.Left, pobjRect.Top), ToView(pobjRect.Right, pobjRect.Bottom)}; }
  QPointF ToChart(const QPointF& pobjPoint) const { return (pobjPoint - Shift()) / Scale(); }
  Rect ToChart(const QRectF& pobjRect) const {
    const QPointF from = ToChart(pobjRect.topLeft()), to = ToChart(pobjRect.bottomRight());
    return {static_cast<float>(from.x()), static_cast<float>(from.y()), static_cast<float>(to.x()), static_cast<float>(to.y())};
  }

 private:
  double Whole(double pdblAt) const { return std::round(pdblAt * Ratio) / Ratio; }
};

}  // namespace vantrel

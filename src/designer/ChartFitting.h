// Keeps the chart and the scroll bars' ranges together.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

class ChartFitting {
 public:
  explicit ChartFitting(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// Moves objects so that no element has a negative coordinate, redraws the moved ones, and widens the ranges to them.
  void Fit();
  /// Widens the ranges to the elements, also below zero.
  void ExtendScrollRange();

 private:
  Rect Extent() const;
  void MoveAll(float psngX, float psngY);

  Vantrel& mobjControl;
};

}  // namespace vantrel

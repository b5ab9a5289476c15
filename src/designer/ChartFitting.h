// Keeps the chart and the scroll bars' ranges together.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

class ChartFitting {
 public:
  explicit ChartFitting(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// Moves all objects to where no element has a negative coordinate, redrawing those alone, and widens the ranges to them.
  void Fit();
  /// Widens the ranges, into the negative too, to where the elements are.
  void ExtendScrollRange();

 private:
  Rect Extent() const;
  void MoveAll(float psngX, float psngY);

  Vantrel& mobjControl;
};

}  // namespace vantrel

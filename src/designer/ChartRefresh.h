// Redraws the chart, and takes a test off it.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

class ChartRefresh {
 public:
  explicit ChartRefresh(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// Nothing in run mode.
  void Refresh();
  /// No tokens, no counts, nothing enabled.
  void Reset();

 private:
  void ResetPlace(Place& pobjPlace) const;
  void ResetTransition(Transition& pobjTransition) const;
  void Show(Node& pobjNode) const;

  Vantrel& mobjControl;
};

}  // namespace vantrel

// Redraws the chart, and clears a test from it.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

class ChartRefresh {
 public:
  explicit ChartRefresh(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// Does nothing in run mode.
  void Refresh();
  /// Removes tokens and counts, and disables everything.
  void Reset();

 private:
  void ResetPlace(Place& pobjPlace) const;
  void ResetTransition(Transition& pobjTransition) const;
  void Show(Node& pobjNode) const;

  Vantrel& mobjControl;
};

}  // namespace vantrel

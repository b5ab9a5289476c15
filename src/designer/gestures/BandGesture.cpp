#include "designer/gestures/BandGesture.h"

#include <algorithm>

#include "designer/Selecting.h"
#include "designer/Vantrel.h"
#include "designer/gestures/Hover.h"

namespace vantrel {

BandGesture::BandGesture(Vantrel& pobjControl, const PointerInput& pobjPress)
    : mobjControl(pobjControl), msngX(pobjPress.X), msngY(pobjPress.Y) {}

void BandGesture::Move(const PointerInput& pobjInput) {
  ShowChartPointer(mobjControl);
  if (mobjControl.IsInsertingArc() || !mobjControl.Selection()->IsEmpty()) return;
  mobjControl.MultiSelect.Area(
      {std::min(msngX, pobjInput.X), std::min(msngY, pobjInput.Y), std::max(msngX, pobjInput.X), std::max(msngY, pobjInput.Y)});
  mobjControl.MultiSelect.Visible(true);
}

void BandGesture::Release(const PointerInput&) {
  if (!mobjControl.MultiSelect.Visible()) return;
  if (mobjControl.Workflow()) mobjControl.Selection(mobjControl.GetSelections());
  Cancel();
  mobjControl.MultiSelectOn = !mobjControl.Selection()->IsEmpty();
  MakeSingleCurrent(mobjControl);
}

void BandGesture::Cancel() { mobjControl.MultiSelect.Visible(false); }

}  // namespace vantrel

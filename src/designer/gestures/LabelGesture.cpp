#include "designer/gestures/LabelGesture.h"

#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Hover.h"
#include "designer/gestures/LabelPlace.h"

namespace vantrel {

LabelGesture::LabelGesture(Vantrel& pobjControl, Label& pobjLabel, const PointerInput& pobjPress)
    : mobjControl(pobjControl),
      mobjLabel(&pobjLabel),
      msngX(pobjPress.X - pobjLabel.Left()),
      msngY(pobjPress.Y - pobjLabel.Top()),
      msngLeft(pobjLabel.Left()),
      msngTop(pobjLabel.Top()) {}

bool LabelGesture::CanMove() const { return IsOnChart(mobjLabel) && mobjControl.UseMode() == vntDesign && !mobjControl.LockControls(); }

void LabelGesture::MoveTo(float psngLeft, float psngTop) {
  mobjLabel->MoveTo(psngLeft, psngTop);
  mobjControl.FocusFrame.FrameControl();
}

void LabelGesture::Move(const PointerInput& pobjInput) {
  ShowChartPointer(mobjControl);
  if (!CanMove()) return;
  mblnMoved = true;
  MoveTo(pobjInput.X - msngX, pobjInput.Y - msngY);
}

void LabelGesture::Release(const PointerInput& pobjInput) {
  if (!mblnMoved || !CanMove()) return;
  MoveTo(pobjInput.X - msngX, pobjInput.Y - msngY);
  const auto label = mobjLabel.Lock();
  StoreLabelPlace(mobjControl, *label);
}

void LabelGesture::Cancel() {
  if (mblnMoved && IsOnChart(mobjLabel)) MoveTo(msngLeft, msngTop);
}

}  // namespace vantrel

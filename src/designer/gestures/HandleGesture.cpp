#include "designer/gestures/HandleGesture.h"

#include "designer/CommandRules.h"
#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Hover.h"

namespace vantrel {

HandleGesture::HandleGesture(Vantrel& pobjControl, Image& pobjHandle, const PointerInput& pobjPress)
    : mobjControl(pobjControl), mobjHandle(&pobjHandle), msngX(pobjPress.X - pobjHandle.Left()), msngY(pobjPress.Y - pobjHandle.Top()) {}

void HandleGesture::Move(const PointerInput& pobjInput) {
  ShowChartPointer(mobjControl);
  const auto workflow = mobjControl.Workflow();
  if (!workflow || !IsOnChart(mobjHandle) || mobjControl.LockControls() || !MayChange(mobjControl)) return;
  const auto elbow = workflow->Elbows.Find(mobjHandle->Tag());
  if (!elbow) return;
  elbow->Left(pobjInput.X - msngX);
  elbow->Top(pobjInput.Y - msngY);
  workflow->Dirty(true);
}

void HandleGesture::Release(const PointerInput&) { Cancel(); }

void HandleGesture::Cancel() { mobjControl.Refresh(); }

}  // namespace vantrel

#include "designer/gestures/FrameGesture.h"

#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"

namespace vantrel {

FrameGesture::FrameGesture(Vantrel& pobjControl, std::int32_t plngHandle, const PointerInput& pobjPress)
    : mobjControl(pobjControl), mobjLabel(dynamic_cast<Label*>(pobjControl.FocusFrame.SelectedControl().get())), mlngHandle(plngHandle) {
  const Rect handle = pobjControl.FocusFrame.Handle(plngHandle);
  msngX = pobjPress.X - handle.Left;
  msngY = pobjPress.Y - handle.Top;
  if (mobjLabel) mobjBefore = mobjLabel->Bounds();
}

bool FrameGesture::CanResize() const {
  return IsOnChart(mobjLabel) && mobjControl.FocusFrame.SelectedControl() == mobjLabel.get() && mobjControl.UseMode() == vntDesign &&
         !mobjControl.LockControls();
}

void FrameGesture::Move(const PointerInput& pobjInput) {
  if (!CanResize()) return;
  FocusFrame& frame = mobjControl.FocusFrame;
  mobjControl.Tools().Pointer(FocusFrame::PointerOf(mlngHandle));
  const Rect handle = frame.Handle(mlngHandle);
  frame.DragHandle(mlngHandle, pobjInput.X - handle.Left - msngX, pobjInput.Y - handle.Top - msngY);
  mblnMoved = true;
}

void FrameGesture::Release(const PointerInput& pobjInput) {
  if (!mblnMoved) return;
  Move(pobjInput);
  if (CanResize()) mobjControl.FocusFrame.ReleaseHandle();
}

void FrameGesture::Cancel() {
  if (!mblnMoved || !IsOnChart(mobjLabel)) return;
  mobjLabel->MoveTo(mobjBefore.Left, mobjBefore.Top);
  mobjLabel->Resize(mobjBefore.Right - mobjBefore.Left, mobjBefore.Bottom - mobjBefore.Top);
  mobjControl.FocusFrame.FrameControl();
}

}  // namespace vantrel

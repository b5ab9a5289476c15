#include "designer/gestures/Presses.h"

#include "designer/Vantrel.h"
#include "designer/gestures/Choosing.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/FrameGesture.h"
#include "designer/gestures/HandleGesture.h"

namespace vantrel {

std::shared_ptr<Gesture> PressAt(Vantrel& pobjControl, const PointerInput& pobjInput) {
  const bool isLeft = pobjInput.Button == vntLeftButton;
  FocusFrame& frame = pobjControl.FocusFrame;
  const std::int32_t handle = isLeft ? frame.HandleAt(pobjInput.X, pobjInput.Y) : -1;
  frame.HasFocus(handle >= 0);
  if (handle >= 0) return std::make_shared<FrameGesture>(pobjControl, handle, pobjInput);

  const bool choosesFirst = !isLeft && pobjControl.Comfort.RightClickChooses && pobjControl.UseMode() == vntDesign;
  if (choosesFirst && !pobjControl.IsInsertingArc()) ChooseUnder(pobjControl, pobjInput);

  Element* const element = ElementUnder(pobjControl, pobjInput.X, pobjInput.Y);
  if (!element) return PressOnChart(pobjControl, pobjInput);
  if (element->Family() == ctlLabelFamily) return PressOnLabel(pobjControl, static_cast<Label&>(*element), pobjInput);
  auto& image = static_cast<Image&>(*element);
  if (element->Family() == ctlImageFamily) return PressOnImage(pobjControl, image, pobjInput);
  return isLeft ? std::make_shared<HandleGesture>(pobjControl, image, pobjInput) : nullptr;
}

}  // namespace vantrel

#include "designer/gestures/ImageGesture.h"

#include "designer/CommandRules.h"
#include "designer/Vantrel.h"
#include "designer/gestures/Choosing.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Hover.h"

namespace vantrel {

ImageGesture::ImageGesture(Vantrel& pobjControl, Image& pobjImage, const PointerInput& pobjPress)
    : mobjControl(pobjControl), mobjImage(&pobjImage), msngX(pobjPress.X), msngY(pobjPress.Y) {}

bool ImageGesture::IsShown() const { return mobjControl.Workflow() && IsOnChart(mobjImage); }

void ImageGesture::Gather() {
  mblnGathered = true;
  const auto node = std::dynamic_pointer_cast<Node>(ObjectOf(mobjControl, *mobjImage));
  if (!node || !(node->Image == mobjImage)) return;
  const auto selection = mobjControl.Selection();
  bool isSelected = false;
  for (const auto& object : *selection) {
    mobjGroup.Add(object);
    isSelected = isSelected || object == node;
  }
  if (!isSelected) mobjGroup.Add(node);
  if (mobjControl.Comfort.ChosenIsSeen) mobjGroup.AddBendPoints();
}

void ImageGesture::Drag(const PointerInput& pobjInput) {
  const auto workflow = mobjControl.Workflow();
  workflow->Dirty(true);
  if (!mblnGathered) Gather();
  mobjGroup.MoveTo(*workflow, pobjInput.X - msngX, pobjInput.Y - msngY);
  mobjControl.FocusFrame.FrameControl();
}

void ImageGesture::Move(const PointerInput& pobjInput) {
  if (!IsShown()) return;
  if (MayChange(mobjControl)) mobjControl.Dirty(true);
  ShowPointerOver(mobjControl, *mobjImage);
  const bool canDrag = mobjControl.UseMode() == vntDesign && !mobjControl.LockControls() && !mobjControl.IsInsertingArc();
  if (canDrag) Drag(pobjInput);
}

void ImageGesture::ChooseClicked(const PointerInput& pobjInput) {
  const bool isWanted = mobjControl.Comfort.DragMovesChosen && mobjControl.UseMode() == vntDesign && !(pobjInput.Shift & vntShift);
  if (isWanted && mobjControl.Selection()->Count() > 1 && mobjControl.CurrentControl() == mobjImage.get())
    ChooseAlone(mobjControl, mobjImage.get());
}

void ImageGesture::Release(const PointerInput& pobjInput) {
  if (mblnGathered && IsShown() && mobjControl.UseMode() == vntDesign) {
    const auto workflow = mobjControl.Workflow();
    mobjGroup.MoveTo(*workflow, pobjInput.X - msngX, pobjInput.Y - msngY);
  }
  if (!mblnGathered && IsShown()) ChooseClicked(pobjInput);
  mobjControl.FocusFrame.Visible(false);
  if (mblnGathered) mobjControl.ExtendScrollRange();  // looks at every element, which is too slow for a click
}

}  // namespace vantrel

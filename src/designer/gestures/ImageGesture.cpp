#include "designer/gestures/ImageGesture.h"

#include "designer/CommandRules.h"
#include "designer/Vantrel.h"
#include "designer/gestures/Choosing.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Hover.h"

namespace vantrel {

namespace {

// True as long as it lives, whatever is thrown.
class Flag {
 public:
  explicit Flag(bool& pblnFlag) : mFlag(pblnFlag) { mFlag = true; }
  ~Flag() { mFlag = false; }
  Flag(const Flag&) = delete;
  Flag& operator=(const Flag&) = delete;

 private:
  bool& mFlag;
};

}  // namespace

ImageGesture::ImageGesture(Vantrel& pobjControl, Image& pobjImage, const PointerInput& pobjPress)
    : mobjControl(&pobjControl), mobjImage(&pobjImage), msngX(pobjPress.X), msngY(pobjPress.Y) {}

bool ImageGesture::IsAlive() const { return mobjControl && mobjControl->Workflow() && IsOnChart(mobjImage); }

void ImageGesture::Gather() {
  mblnGathered = true;
  const auto node = std::dynamic_pointer_cast<Node>(ObjectOf(*mobjControl, *mobjImage));
  if (!node || !(node->Image == mobjImage)) return;
  const auto selection = mobjControl->Selection();
  bool isSelected = false;
  for (const auto& object : *selection) {
    mobjGroup.Add(object);
    isSelected = isSelected || object == node;
  }
  if (!isSelected) mobjGroup.Add(node);
  if (mobjControl->Comfort.ChosenIsSeen) mobjGroup.AddBendPoints();
}

void ImageGesture::Drag(const PointerInput& pobjInput) {
  const Flag dragging(mblnDragging);
  const auto workflow = mobjControl->Workflow();
  workflow->Dirty(true);
  if (!IsAlive()) return;
  if (!mblnGathered) Gather();
  mobjGroup.MoveTo(*workflow, pobjInput.X - msngX, pobjInput.Y - msngY);
  if (mobjControl) mobjControl->FocusFrame.FrameControl();
}

void ImageGesture::Move(const PointerInput& pobjInput) {
  if (!IsAlive()) return;
  if (MayChange(*mobjControl)) mobjControl->Dirty(true);
  if (!IsAlive()) return;
  ShowPointerOver(*mobjControl, *mobjImage);
  if (mblnDragging || mobjControl->UseMode() != vntDesign) return;
  if (!mobjControl->LockControls() && !mobjControl->IsInsertingArc()) Drag(pobjInput);
}

void ImageGesture::ChooseClicked(const PointerInput& pobjInput) {
  const bool isWanted = mobjControl->Comfort.DragMovesChosen && mobjControl->UseMode() == vntDesign && !(pobjInput.Shift & vntShift);
  if (isWanted && mobjControl->Selection()->Count() > 1 && mobjControl->CurrentControl() == mobjImage.get())
    ChooseAlone(*mobjControl, mobjImage.get());
}

void ImageGesture::Release(const PointerInput& pobjInput) {
  if (mblnGathered && IsAlive() && mobjControl->UseMode() == vntDesign) {
    const auto workflow = mobjControl->Workflow();
    mobjGroup.MoveTo(*workflow, pobjInput.X - msngX, pobjInput.Y - msngY);
  }
  if (!mblnGathered && IsAlive()) ChooseClicked(pobjInput);
  if (!mobjControl) return;
  mobjControl->FocusFrame.Visible(false);
  if (mblnGathered) mobjControl->ExtendScrollRange();  // a look at every element, too dear for a click
}

}  // namespace vantrel

// Dragging objects by the image of one of them.
#pragma once

#include "chart/Image.h"
#include "designer/gestures/Gesture.h"
#include "designer/gestures/Moving.h"
#include "model/Node.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// Begins with a left press on an object image. Moves the selection and the image's object. Does nothing outside design mode, on a locked
/// chart, or when the image is not its object's own.
class ImageGesture final : public Gesture {
 public:
  ImageGesture(Vantrel& pobjControl, Image& pobjImage, const PointerInput& pobjPress);

  void Move(const PointerInput& pobjInput) override;
  void Release(const PointerInput& pobjInput) override;

 private:
  bool IsShown() const;
  void Gather();
  void Drag(const PointerInput& pobjInput);
  // Comfort::DragMovesChosen: without a drag the object is chosen alone.
  void ChooseClicked(const PointerInput& pobjInput);

  Vantrel& mobjControl;
  Ref<Image> mobjImage;
  MovingGroup mobjGroup;
  float msngX, msngY;  // of the press
  bool mblnGathered = false;
};

}  // namespace vantrel

#include "designer/Aligning.h"

#include <memory>
#include <vector>

#include "designer/ChartObjects.h"

namespace vantrel {

namespace {

float CentreX(const Rect& pobjBox) { return (pobjBox.Left + pobjBox.Right) / 2; }
float CentreY(const Rect& pobjBox) { return (pobjBox.Top + pobjBox.Bottom) / 2; }

}  // namespace

void Aligning::Align(const std::string& pstrDirection) {
  std::vector<std::shared_ptr<ModelObject>> objects;
  const auto selection = mobjControl.Selection();
  for (const auto& object : *selection) {
    if (BoundsOf(*object) && !std::dynamic_pointer_cast<Elbow>(object)) objects.push_back(object);
  }
  if (objects.empty()) return;
  const Rect reference = *BoundsOf(*objects.front());
  for (const auto& object : objects) {
    const Rect box = *BoundsOf(*object);
    if (pstrDirection == "Vertical") {
      MoveTo(*object, CentreX(reference) - (box.Right - box.Left) / 2, box.Top);
    } else if (pstrDirection == "Horizontal") {
      MoveTo(*object, box.Left, CentreY(reference) - (box.Bottom - box.Top) / 2);
    }
  }
  mobjControl.FocusFrame.FrameControl();
  mobjControl.Dirty(true);
}

}  // namespace vantrel

#include "designer/Aligning.h"

#include <memory>
#include <vector>

#include "designer/ChartObjects.h"

namespace vantrel {

namespace {

float CentreX(const Rect& pobjBox) { return (pobjBox.Left + pobjBox.Right) / 2; }
float CentreY(const Rect& pobjBox) { return (pobjBox.Top + pobjBox.Bottom) / 2; }

}  // namespace

void AlignSelection(Vantrel& pobjControl, const std::string& pstrDirection) {
  std::vector<std::shared_ptr<ChartObject>> objects;
  const auto selection = pobjControl.Selection();
  for (const auto& selected : *selection) {
    auto object = std::dynamic_pointer_cast<ChartObject>(selected);
    if (object && object->Bounds() && object->Kind() != ChartKind::Elbow) objects.push_back(std::move(object));
  }
  if (objects.empty()) return;
  const Rect reference = *objects.front()->Bounds();
  for (const auto& object : objects) {
    const Rect box = *object->Bounds();
    if (pstrDirection == "Vertical") {
      MoveTo(*object, CentreX(reference) - (box.Right - box.Left) / 2, box.Top);
    } else if (pstrDirection == "Horizontal") {
      MoveTo(*object, box.Left, CentreY(reference) - (box.Bottom - box.Top) / 2);
    }
  }
  pobjControl.FocusFrame.FrameControl();
  pobjControl.Dirty(true);
}

}  // namespace vantrel

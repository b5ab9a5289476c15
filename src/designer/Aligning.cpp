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
  auto objects = ChartObjectsIn(*pobjControl.Selection());
  std::erase_if(objects, [](const auto& object) { return !object->Bounds() || object->Kind() == ChartKind::Elbow; });
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

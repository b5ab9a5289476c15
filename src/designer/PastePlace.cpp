#include "designer/PastePlace.h"

#include <algorithm>
#include <limits>

#include "designer/Vantrel.h"

namespace vantrel {

namespace {

constexpr float kBesideLast = 300;  // twips

}  // namespace

PastePlace::Corner PastePlace::CornerOf(const Objects& pcolObjects) {
  float left = std::numeric_limits<float>::max(), top = left;
  for (const auto& object : pcolObjects) {
    const auto bounds = object->Bounds();
    if (!bounds) continue;
    left = std::min(left, bounds->Left);
    top = std::min(top, bounds->Top);
  }
  return {left, top};
}

void PastePlace::Remember(const Vantrel& pobjControl, const Corner& pobjCorner) {
  mobjPosition = {pobjControl.CurrentX, pobjControl.CurrentY};
  mobjLast = pobjCorner;
  mblnKnown = true;
}

PastePlace::Corner PastePlace::Take(const Vantrel& pobjControl) {
  const bool isUnchanged = mblnKnown && mobjPosition.Left == pobjControl.CurrentX && mobjPosition.Top == pobjControl.CurrentY;
  const Corner corner =
      isUnchanged ? Corner{mobjLast.Left + kBesideLast, mobjLast.Top + kBesideLast} : Corner{pobjControl.CurrentX, pobjControl.CurrentY};
  Remember(pobjControl, corner);
  return corner;
}

}  // namespace vantrel

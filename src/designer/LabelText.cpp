#include "designer/LabelText.h"

#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"

namespace vantrel {

std::string TextOf(const Vantrel& pobjControl, const Label& pobjLabel) {
  const auto arc = std::dynamic_pointer_cast<Arc>(ObjectOf(pobjControl, pobjLabel));
  if (!arc) return pobjLabel.Caption();
  return arc->CaptionLabel == &pobjLabel ? arc->Guard() : arc->Weight();
}

void StoreText(Vantrel& pobjControl, const Label& pobjLabel, const std::string& pstrText) {
  // The control may release it meanwhile. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const auto workflow = pobjControl.Workflow();
  const auto object = ObjectOf(pobjControl, pobjLabel);
  if (!object) return;
  if (const auto node = std::dynamic_pointer_cast<Node>(object)) {
    node->Caption(pstrText);
    node->Draw();
  } else if (const auto note = std::dynamic_pointer_cast<Notation>(object)) {
    note->Caption = pstrText;
    note->Dirty = true;
    note->Draw();
  } else if (const auto arc = std::dynamic_pointer_cast<Arc>(object)) {
    if (arc->CaptionLabel == &pobjLabel) {
      arc->Guard(pstrText);
      if (pstrText.empty()) pobjControl.CurrentControl(nullptr);  // its label is hidden now
    } else {
      arc->Weight(pstrText);
      arc->Dirty = true;
      arc->Draw();
    }
  }
  workflow->Dirty(true);
}

}  // namespace vantrel

#include "designer/gestures/Choosing.h"

#include "designer/ChartObjects.h"
#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/SegmentHit.h"

namespace vantrel {

void ChooseAlone(Vantrel& pobjControl, const Ref<Element>& pobjElement) {
  const auto element = pobjElement;  // NOLINT(performance-unnecessary-copy-initialization): the caller's may be the control's own
  pobjControl.CurrentControl(nullptr);
  pobjControl.Selection(nullptr);
  if (IsOnChart(element)) pobjControl.CurrentControl(element);
}

void ChooseUnder(Vantrel& pobjControl, const PointerInput& pobjInput) {
  Ref<Element> element = ElementUnder(pobjControl, pobjInput.X, pobjInput.Y);
  if (!element) element = SegmentAt(pobjControl.ChartArea, pobjInput.X, pobjInput.Y).get();
  const auto object = element ? ObjectOf(pobjControl, *element) : nullptr;
  if (const auto* node = dynamic_cast<const Node*>(object.get()); node && element->Family() == ctlImageFamily) element = node->Image.get();
  if (object && IsSelected(*object)) return pobjControl.CurrentControl(element);
  ChooseAlone(pobjControl, object ? element : Ref<Element>());
}

}  // namespace vantrel

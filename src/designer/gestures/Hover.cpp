#include "designer/gestures/Hover.h"

#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "model/VNTRGlobal.h"

namespace vantrel {

namespace {

bool ReactsToClick(const Vantrel& pobjControl, const Element& pobjImage) {
  const auto object = ObjectOf(pobjControl, pobjImage);
  if (const auto* transition = dynamic_cast<const Transition*>(object.get())) return transition->Enabled();
  const auto* place = dynamic_cast<const Place*>(object.get());
  return place && !place->Tokens().IsEmpty();
}

void StretchRubberBand(Vantrel& pobjControl, const PointerInput& pobjInput) {
  const auto source = pobjControl.CurrentControl();
  if (!IsOnChart(source)) return;
  const auto node = std::dynamic_pointer_cast<Node>(ObjectOf(pobjControl, *source));
  if (!node || !IsOnChart(node->OutConnector)) return;
  Line& line = pobjControl.ChartArea.ctlLine.Template();
  line.Place(OutputConnectorX(*node), OutputConnectorY(*node), pobjInput.X, pobjInput.Y);
  line.BringToFront();
  line.Visible(true);
}

}  // namespace

bool IsTesting(const Vantrel& pobjControl) { return pobjControl.UseMode() == vntTest || pobjControl.UseMode() == vntStepTest; }

void ShowChartPointer(Vantrel& pobjControl) {
  pobjControl.Tools().Pointer(pobjControl.IsInsertingArc() ? vntPointerCross : vntPointerDefault);
}

void ShowPointerOver(Vantrel& pobjControl, const Element& pobjImage) {
  if (IsTesting(pobjControl) && ReactsToClick(pobjControl, pobjImage)) {
    pobjControl.Tools().Pointer(vntPointerHand);
  } else {
    ShowChartPointer(pobjControl);
  }
}

void Hover(Vantrel& pobjControl, const PointerInput& pobjInput) {
  const std::int32_t handle = pobjControl.FocusFrame.HandleAt(pobjInput.X, pobjInput.Y);
  const Element* element = handle < 0 ? ElementUnder(pobjControl, pobjInput.X, pobjInput.Y) : nullptr;
  if (handle >= 0) {
    pobjControl.Tools().Pointer(FocusFrame::PointerOf(handle));
  } else if (element && element->Family() == ctlImageFamily) {
    ShowPointerOver(pobjControl, *element);
  } else {
    ShowChartPointer(pobjControl);
  }
  if (pobjControl.IsInsertingArc()) StretchRubberBand(pobjControl, pobjInput);
}

}  // namespace vantrel

#include "designer/gestures/ArcCompletion.h"

#include "designer/HostEvents.h"
#include "designer/gestures/ElementUnder.h"

namespace vantrel {

namespace {

std::shared_ptr<Arc> Join(Vantrel& pobjControl, const std::shared_ptr<Node>& pobjTarget) {
  if (pobjControl.Workflow()->StartPlace.get() == pobjTarget.get()) {
    SayLater(pobjControl, "Arcs are allowed to be drawn into a Start Place.");
    return nullptr;
  }
  const auto current = pobjControl.CurrentControl();
  if (!IsOnChart(current)) return nullptr;
  const auto source = std::dynamic_pointer_cast<Node>(ObjectOf(pobjControl, *current));
  return source ? pobjControl.InsertArc(source, pobjTarget) : nullptr;
}

void EndDrawing(Vantrel& pobjControl) {
  pobjControl.EndArcInsert();
  pobjControl.Selection(nullptr);
}

// The user goes on from there.
void Choose(Vantrel& pobjControl, const Ref<Element>& pobjElement) {
  if (pobjControl.Comfort.ArcTargetIsChosen && IsOnChart(pobjElement)) pobjControl.CurrentControl(pobjElement);
}

}  // namespace

void CompleteArc(Vantrel& pobjControl, Image& pobjTarget) {
  const auto target = std::dynamic_pointer_cast<Node>(ObjectOf(pobjControl, pobjTarget));
  const Ref<Element> source = pobjControl.CurrentControl();
  std::shared_ptr<Arc> arc;
  try {
    if (target) arc = Join(pobjControl, target);
  } catch (const Error&) {
    EndDrawing(pobjControl);
    throw;
  }
  EndDrawing(pobjControl);
  Choose(pobjControl, arc ? Ref<Element>(target->Image.get()) : source);
  if (arc) RaiseLater(pobjControl, &Vantrel::OnArcInserted, arc);
}

}  // namespace vantrel

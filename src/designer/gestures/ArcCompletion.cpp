#include "designer/gestures/ArcCompletion.h"

#include "designer/HostEvents.h"
#include "designer/gestures/ElementUnder.h"

namespace vantrel {

namespace {

std::shared_ptr<Arc> Join(const Ref<Vantrel>& pobjControl, const std::shared_ptr<Node>& pobjTarget) {
  const auto start = pobjControl->Workflow()->StartPlace;
  if (start && pobjTarget.get() == start.get()) {
    SayLater(*pobjControl, "Arcs are allowed to be drawn into a Start Place.");
    return nullptr;
  }
  const auto current = pobjControl->CurrentControl();
  if (!IsOnChart(current)) return nullptr;
  const auto source = std::dynamic_pointer_cast<Node>(ObjectOf(*pobjControl, *current));
  return source ? pobjControl->InsertArc(source, pobjTarget) : nullptr;
}

void EndDrawing(const Ref<Vantrel>& pobjControl) {
  if (!pobjControl) return;
  pobjControl->EndArcInsert();
  if (pobjControl) pobjControl->Selection(nullptr);
}

// The user goes on from there.
void Choose(const Ref<Vantrel>& pobjControl, const Ref<Element>& pobjElement) {
  if (pobjControl && pobjControl->Comfort.ArcTargetIsChosen && IsOnChart(pobjElement)) pobjControl->CurrentControl(pobjElement);
}

}  // namespace

void CompleteArc(Vantrel& pobjControl, Image& pobjTarget) {
  const Ref<Vantrel> control(&pobjControl);
  const auto target = std::dynamic_pointer_cast<Node>(ObjectOf(pobjControl, pobjTarget));
  const Ref<Element> source = pobjControl.CurrentControl();
  std::shared_ptr<Arc> arc;
  try {
    if (target) arc = Join(control, target);
    if (arc && arc->Workflow) {
      arc->Visible(true);
      arc->Draw();
    }
  } catch (const Error&) {
    EndDrawing(control);
    throw;
  }
  EndDrawing(control);
  Choose(control, arc ? Ref<Element>(target->Image.get()) : source);
  if (arc && control) RaiseLater(*control, &Vantrel::OnArcInserted, arc);
}

}  // namespace vantrel

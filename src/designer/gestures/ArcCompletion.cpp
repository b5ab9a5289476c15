#include "designer/gestures/ArcCompletion.h"

#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

std::shared_ptr<Arc> Join(const Ref<Vantrel>& pobjControl, const std::shared_ptr<Node>& pobjTarget) {
  const auto start = pobjControl->Workflow()->StartPlace;
  if (start && pobjTarget.get() == start.get()) {
    MsgBox("Arcs are allowed to be drawn into a Start Place.");
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

}  // namespace

void CompleteArc(Vantrel& pobjControl, Image& pobjTarget) {
  const Ref<Vantrel> control(&pobjControl);
  const auto target = std::dynamic_pointer_cast<Node>(ObjectOf(pobjControl, pobjTarget));
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
  if (arc && control) control->OnArcInserted.Raise(arc);
}

}  // namespace vantrel

#include "designer/ChartRefresh.h"

#include "model/SingleDrawing.h"

namespace vantrel {

namespace {

// Transitions are drawn after the places and draw nearly all arcs, so the places need not.
void DrawPlaces(Workflow& pobjWorkflow) {
  SingleDrawing noArcs(pobjWorkflow);
  noArcs.Forget();
  for (Collection<Place>::Cursor places(pobjWorkflow.Places); Place* place = places.Next();) {
    if (place->Visible()) place->Draw();
  }
  noArcs.Finish();
}

void DrawAll(Workflow& pobjWorkflow) {
  DrawPlaces(pobjWorkflow);
  for (Collection<Transition>::Cursor transitions(pobjWorkflow.Transitions); Transition* transition = transitions.Next();)
    transition->Draw();
  for (Collection<Arc>::Cursor arcs(pobjWorkflow.Arcs); Arc* arc = arcs.Next();) {
    const bool drawnByTransition = arc->Transition && arc->Transition->Visible();
    if (!drawnByTransition) arc->Draw();
  }
  for (Collection<Notation>::Cursor notes(pobjWorkflow.Notations); Notation* note = notes.Next();) note->Draw();
}

void ShowIdle(const Vantrel& pobjControl, Node& pobjNode) {
  if (auto* image = pobjNode.Image.get()) image->Picture(pobjControl.ImageList->Find(pobjNode.DisabledImageKey));
}

void ResetPlace(const Vantrel& pobjControl, Place& pobjPlace) {
  pobjPlace.Tokens().Clear();
  pobjPlace.TokenCount(0);
  if (auto* label = pobjPlace.CountLabel.get()) {
    label->Visible(false);
    label->Caption("");
  }
  ShowIdle(pobjControl, pobjPlace);
  if (auto* image = pobjPlace.Image.get()) image->BringToFront();
}

void ResetTransition(const Vantrel& pobjControl, Transition& pobjTransition) {
  pobjTransition.CancelRuns();
  pobjTransition.Enabled(false);
  ShowIdle(pobjControl, pobjTransition);
}

}  // namespace

void RefreshChart(Vantrel& pobjControl) {
  const auto& workflow = pobjControl.Workflow();
  if (workflow && pobjControl.UseMode() == vntRun) return;
  try {
    if (workflow) DrawAll(*workflow);
  } catch (const Error&) {
    return;
  }
  pobjControl.ChartArea.Visible(true);
  pobjControl.FocusFrame.FrameControl();
}

void ResetChart(Vantrel& pobjControl) {
  if (const auto& workflow = pobjControl.Workflow()) {
    for (Collection<Place>::Cursor cursor(workflow->Places); Place* place = cursor.Next();) ResetPlace(pobjControl, *place);
    for (Collection<Transition>::Cursor cursor(workflow->Transitions); Transition* transition = cursor.Next();) {
      ResetTransition(pobjControl, *transition);
    }
    workflow->FiringStack.Clear();
    workflow->Tokens.Clear();
  }
  const auto commands = pobjControl.TestCommands;
  commands->ForgetCases();
}

}  // namespace vantrel

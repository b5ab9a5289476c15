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

}  // namespace

void ChartRefresh::Refresh() {
  const auto workflow = mobjControl.Workflow();
  if (workflow && mobjControl.UseMode() == vntRun) return;
  try {
    if (workflow) DrawAll(*workflow);
  } catch (const Error&) {
    return;
  }
  mobjControl.ChartArea.Visible(true);
  mobjControl.FocusFrame.FrameControl();
}

void ChartRefresh::Show(Node& pobjNode) const {
  if (auto* image = pobjNode.Image.get()) image->Picture(mobjControl.ImageList->Find(pobjNode.DisabledImageKey));
}

void ChartRefresh::ResetPlace(Place& pobjPlace) const {
  pobjPlace.Tokens().Clear();
  pobjPlace.TokenCount(0);
  if (auto* label = pobjPlace.CountLabel.get()) {
    label->Visible(false);
    label->Caption("");
  }
  Show(pobjPlace);
  if (auto* image = pobjPlace.Image.get()) image->BringToFront();
}

void ChartRefresh::ResetTransition(Transition& pobjTransition) const {
  pobjTransition.CancelRuns();
  pobjTransition.Enabled(false);
  Show(pobjTransition);
}

void ChartRefresh::Reset() {
  if (const auto workflow = mobjControl.Workflow()) {
    for (Collection<Place>::Cursor cursor(workflow->Places); Place* place = cursor.Next();) ResetPlace(*place);
    for (Collection<Transition>::Cursor cursor(workflow->Transitions); Transition* transition = cursor.Next();) {
      ResetTransition(*transition);
    }
    workflow->FiringStack.Clear();
    workflow->Tokens.Clear();
  }
  const auto commands = mobjControl.TestCommands;
  commands->ForgetCases();
}

}  // namespace vantrel

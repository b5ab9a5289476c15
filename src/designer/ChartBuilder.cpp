#include "designer/ChartBuilder.h"

#include "designer/ChartFitting.h"
#include "designer/ControlParts.h"
#include "designer/ElementBinding.h"

namespace vantrel {

namespace {

constexpr Color kGrey = 0xC0C0C0;

// Shows the hourglass and switches RefreshOn off until the chart is built or building it has failed.
class Building {
 public:
  explicit Building(Vantrel& pobjControl) : mobjControl(pobjControl) {
    mobjControl.Tools().Pointer(vntPointerHourglass);
    mobjControl.RefreshOn = false;
  }
  ~Building() {
    mobjControl.Tools().Pointer(vntPointerDefault);
    mobjControl.RefreshOn = true;
  }
  Building(const Building&) = delete;
  Building& operator=(const Building&) = delete;

 private:
  Vantrel& mobjControl;
};

// Views do not paint a chart that is being changed as a whole.
class HiddenChart {
 public:
  explicit HiddenChart(Vantrel& pobjControl) : mobjControl(pobjControl) { pobjControl.ChartArea.Visible(false); }
  ~HiddenChart() { mobjControl.ChartArea.Visible(true); }
  HiddenChart(const HiddenChart&) = delete;
  HiddenChart& operator=(const HiddenChart&) = delete;

 private:
  Vantrel& mobjControl;
};

template <class E>
void UnloadAll(ElementFamily<E>& pobjFamily) {
  for (std::int32_t index = pobjFamily.UpperBound(); index > 0; --index) {
    if (const auto element = pobjFamily.At(index)) element->Unload();
  }
}

template <class T>
void BindEach(Vantrel& pobjControl, const Collection<T>& pcolObjects) {
  for (typename Collection<T>::Cursor cursor(pcolObjects); T* object = cursor.Next();) Bind(pobjControl, *object);
}

// Before anything is taken off the chart.
void RequirePictures(const Vantrel& pobjControl, const Workflow& pobjWorkflow) {
  for (Collection<Place>::Cursor cursor(pobjWorkflow.Places); const Place* place = cursor.Next();) RequirePicture(pobjControl, *place);
}

void LetGo(Vantrel& pobjControl) {
  if (pobjControl.IsInsertingArc()) pobjControl.EndArcInsert();
  pobjControl.MultiSelect.Visible(false);
  pobjControl.MultiSelectOn = false;
  pobjControl.CurrentObject(nullptr);
  if (pobjControl.Workflow()) ClearChart(pobjControl);
}

void Take(Vantrel& pobjControl, const std::shared_ptr<Workflow>& pobjWorkflow) {
  ControlParts& parts = PartsOf(pobjControl);
  if (parts.Workflow) parts.Workflow->ShownBy(nullptr);
  parts.Workflow = pobjWorkflow;
  parts.State.Workflow = pobjWorkflow;
  parts.TokenAdded = Subscription();
  if (!pobjWorkflow) return;
  pobjWorkflow->ShownBy(&parts.State);
  parts.TokenAdded =
      pobjWorkflow->OnTokenAdded.Connect([&pobjControl](const std::shared_ptr<Place>& place, const std::shared_ptr<Token>& token) {
        pobjControl.OnTokenAdded.Raise(place, token);
      });
}

void BindAll(Vantrel& pobjControl) {
  const Workflow& workflow = *pobjControl.Workflow();
  BindEach(pobjControl, workflow.Transitions);
  BindEach(pobjControl, workflow.Places);
  BindEach(pobjControl, workflow.Arcs);
  BindEach(pobjControl, workflow.Notations);
}

void Build(Vantrel& pobjControl) {
  Workflow& workflow = *pobjControl.Workflow();
  {
    const Building building(pobjControl);
    BindAll(pobjControl);
    for (auto* bar : {&pobjControl.HScroll, &pobjControl.VScroll}) {
      bar->Min(0);
      bar->Max(0);
      bar->Value(0);
    }
    workflow.Visible(true);
  }
  PartsOf(pobjControl).RunStyle = workflow.RunStyle;
  pobjControl.LockControls(workflow.LockControls);
  FitChart(pobjControl);  // what it does not move is drawn already
}

}  // namespace

void ClearChart(Vantrel& pobjControl) {
  pobjControl.CurrentControl(nullptr);
  pobjControl.Selection(nullptr);
  auto& surface = pobjControl.ChartArea;
  UnloadAll(surface.ctlImage);
  UnloadAll(surface.ctlLabel);
  UnloadAll(surface.lblCount);
  UnloadAll(surface.ctlLine);
  UnloadAll(surface.ctlHandle);
}

void ShowWorkflow(Vantrel& pobjControl, const std::shared_ptr<Workflow>& pobjWorkflow) {
  const auto workflow = pobjWorkflow;  // NOLINT(performance-unnecessary-copy-initialization): the caller's may be the control's own share
  if (workflow) {
    RequirePictures(pobjControl, *workflow);
    if (workflow->IsShown() && workflow != pobjControl.Workflow()) workflow->Designer().Host->LetGo();
  }
  pobjControl.FocusFrame.SelectedControl(nullptr);
  const HiddenChart hidden(pobjControl);
  LetGo(pobjControl);
  const auto before = pobjControl.Workflow();  // if this is the last share, the workflow dies only when nothing of it is shown any more
  Take(pobjControl, workflow);
  if (!workflow) {
    pobjControl.ChartArea.BackColor(kGrey);
    return;
  }
  pobjControl.ChartArea.BackColor(pobjControl.BackColor());
  Build(pobjControl);
  const auto dialogs = pobjControl.Dialogs;
  for (Collection<Transition>::Cursor cursor(workflow->Transitions); Transition* transition = cursor.Next();) {
    if (transition->Roles) dialogs->LoadRolesImage(pobjControl, *transition);
  }
  workflow->Loaded = true;
  workflow->Dirty(false);
}

}  // namespace vantrel

#include "designer/ChartBuilder.h"

#include "designer/ChartFitting.h"
#include "designer/ControlScope.h"
#include "designer/ElementBinding.h"
#include "model/DesignerState.h"

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
  ElementBinding binding(pobjControl);
  for (typename Collection<T>::Cursor cursor(pcolObjects); T* object = cursor.Next();) binding.Bind(*object);
}

}  // namespace

void ChartBuilder::Clear() {
  mobjControl.CurrentControl(nullptr);
  mobjControl.Selection(nullptr);
  auto& surface = mobjControl.ChartArea;
  UnloadAll(surface.ctlImage);
  UnloadAll(surface.ctlLabel);
  UnloadAll(surface.lblCount);
  UnloadAll(surface.ctlLine);
  UnloadAll(surface.ctlHandle);
}

// Before anything is taken off the chart.
void ChartBuilder::RequirePictures(const Workflow& pobjWorkflow) const {
  const ElementBinding binding(mobjControl);
  for (Collection<Place>::Cursor cursor(pobjWorkflow.Places); const Place* place = cursor.Next();) binding.RequirePicture(*place);
}

void ChartBuilder::LetGo() {
  if (mobjControl.IsInsertingArc()) mobjControl.EndArcInsert();
  mobjControl.MultiSelect.Visible(false);
  mobjControl.MultiSelectOn = false;
  mobjControl.CurrentObject(nullptr);
  if (mobjControl.mWorkflow) Clear();
}

void ChartBuilder::Take(const std::shared_ptr<Workflow>& pobjWorkflow) {
  if (mobjControl.mWorkflow) mobjControl.mWorkflow->ShownBy(nullptr);
  mobjControl.mWorkflow = pobjWorkflow;
  mobjControl.mobjState->Workflow = pobjWorkflow;
  mobjControl.mTokenAdded = Subscription();
  if (!pobjWorkflow) return;
  pobjWorkflow->ShownBy(mobjControl.mobjState.get());
  Vantrel& control = mobjControl;
  mobjControl.mTokenAdded = pobjWorkflow->OnTokenAdded.Connect(
      [&control](const std::shared_ptr<Place>& place, const std::shared_ptr<Token>& token) { control.OnTokenAdded.Raise(place, token); });
}

void ChartBuilder::BindAll() {
  const Workflow& workflow = *mobjControl.mWorkflow;
  BindEach(mobjControl, workflow.Transitions);
  BindEach(mobjControl, workflow.Places);
  BindEach(mobjControl, workflow.Arcs);
  BindEach(mobjControl, workflow.Notations);
}

void ChartBuilder::Build() {
  Workflow& workflow = *mobjControl.mWorkflow;
  {
    const Building building(mobjControl);
    BindAll();
    for (auto* bar : {&mobjControl.HScroll, &mobjControl.VScroll}) {
      bar->Min(0);
      bar->Max(0);
      bar->Value(0);
    }
    workflow.Visible(true);
  }
  mobjControl.mRunStyle = workflow.RunStyle;
  mobjControl.LockControls(workflow.LockControls);
  ChartFitting(mobjControl).Fit();  // what it does not move is drawn already
}

void ChartBuilder::Show(const std::shared_ptr<Workflow>& pobjWorkflow) {
  const auto workflow = pobjWorkflow;  // NOLINT(performance-unnecessary-copy-initialization): the caller's may be the control's own share
  if (workflow) {
    RequirePictures(*workflow);
    if (workflow->IsShown() && workflow != mobjControl.mWorkflow) workflow->Designer().Host->LetGo();
  }
  mobjControl.FocusFrame.SelectedControl(nullptr);
  const HiddenChart hidden(mobjControl);
  LetGo();
  const auto before = mobjControl.mWorkflow;  // if this is the last share, the workflow dies only when nothing of it is shown any more
  Take(workflow);
  if (!workflow) {
    mobjControl.ChartArea.BackColor(kGrey);
    return;
  }
  mobjControl.ChartArea.BackColor(mobjControl.BackColor());
  Build();
  const auto dialogs = mobjControl.Dialogs;
  for (Collection<Transition>::Cursor cursor(workflow->Transitions); Transition* transition = cursor.Next();) {
    if (transition->Roles) dialogs->LoadRolesImage(mobjControl, *transition);
  }
  workflow->Loaded = true;
  workflow->Dirty(false);
}

}  // namespace vantrel

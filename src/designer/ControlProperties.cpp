#include "designer/ControlProperties.h"

#include "designer/ControlParts.h"
#include "designer/HostEvents.h"
#include "model/PropertyBuilder.h"
#include "toolkit/ComDlg32.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

std::string NameOrNone(const Ref<Place>& pobjPlace) { return pobjPlace ? pobjPlace->Name() : std::string(); }

// Places that share a name (a host may store any) share one option.
void AddPlaces(PropertyRecord& pobjRecord, const Workflow& pobjWorkflow, Collection<Arc> Node::*pArcs) {
  for (Collection<Place>::Cursor cursor(pobjWorkflow.Places); const Place* place = cursor.Next();) {
    if ((place->*pArcs).IsEmpty() && !pobjRecord.Options.Contains(place->Name())) pobjRecord.AddOption(place->Name(), place->Name());
  }
}

Workflow& ShownBy(const Vantrel& pobjControl) { return *Ref<Workflow>(pobjControl.Workflow()); }

// False for the name of no setting of the workflow.
bool StoreInWorkflow(const Vantrel& pobjControl, const std::string& pstrPropName, const Variant& pvarValue) {
  if (pstrPropName == "StartPlace") {
    ShownBy(pobjControl).StartPlace = FindByName(ShownBy(pobjControl).Places, pvarValue.ToText());
  } else if (pstrPropName == "EndPlace") {
    ShownBy(pobjControl).EndPlace(FindByName(ShownBy(pobjControl).Places, pvarValue.ToText()));
  } else if (pstrPropName == "KeepHistory") {
    ShownBy(pobjControl).KeepHistory = pvarValue.ToBoolean();
  } else if (pstrPropName == "CaseTracking") {
    ShownBy(pobjControl).CaseTracking = pvarValue.ToBoolean();
  } else if (pstrPropName == "RunStyle") {
    ShownBy(pobjControl).RunStyle = static_cast<RunStyleConstant>(pvarValue.ToInt32());
  } else {
    return false;
  }
  return true;
}

}  // namespace

std::string Vantrel::UseModeName(std::int32_t plngMode) {
  switch (plngMode) {
    case vntDesign:
      return "Design";
    case vntTest:
      return "Test";
    case vntStepTest:
      return "StepTest";
    case vntRun:
      return "Run";
    default:
      return {};
  }
}

void SetUseMode(Vantrel& pobjControl, UseModeConstant pintMode) {
  PartsOf(pobjControl).State.UseMode = pintMode;
  if (const auto workflow = pobjControl.Workflow()) {
    if (pintMode == vntDesign) {
      for (Collection<Place>::Cursor cursor(workflow->Places); const Place* place = cursor.Next();) {
        if (auto* label = place->CountLabel.get()) label->Visible(false);
      }
    } else {
      pobjControl.FocusFrame.Visible(false);
    }
  }
  RaiseLater(pobjControl, &Vantrel::OnUseModeChange, pintMode);
}

void ShowOnArcs(Vantrel& pobjControl, bool Workflow::*pFlag, bool pblnOn) {
  const auto workflow = pobjControl.Workflow();
  if (!workflow) throw Error(vntErrObjectNotSet);
  if ((*workflow).*pFlag == pblnOn) return;
  workflow->Dirty(true);
  (*workflow).*pFlag = pblnOn;
  for (Collection<Arc>::Cursor cursor(workflow->Arcs); Arc* arc = cursor.Next();) arc->Draw();
  const Element* framed = pobjControl.FocusFrame.SelectedControl().get();
  if (framed && !framed->Visible()) pobjControl.CurrentControl(nullptr);
}

void SetBackColor(Vantrel& pobjControl, Color plngColor) {
  PartsOf(pobjControl).BackColor = plngColor;
  pobjControl.ChartArea.BackColor(plngColor);
  pobjControl.Dirty(true);
}

void ChooseBackColor(Vantrel& pobjControl) {
  const HostTurn turn(pobjControl);
  if (!turn) return;
  const Color before = pobjControl.BackColor(), chosen = ComDlg32(pobjControl.Tools()).SelectColor(before);
  if (turn && chosen != before) pobjControl.BackColor(chosen);
}

std::shared_ptr<PropertyCollection> PropertiesOf(const Vantrel& pobjControl) {
  const auto workflow = pobjControl.Workflow();
  if (!workflow) return nullptr;
  const PropertyBuilder::Options yesNo = {{"True", true}, {"False", false}};
  PropertyBuilder records;
  auto& start = records.Add("StartPlace", vntPropertyText, "Name of the starting place", NameOrNone(workflow->StartPlace));
  AddPlaces(start, *workflow, &Node::InArcs);
  auto& end = records.Add("EndPlace", vntPropertyText, "Name of the ending place", NameOrNone(workflow->EndPlace()));
  AddPlaces(end, *workflow, &Node::OutArcs);
  records.Add("BackColor", vntPropertyColor, "Chart's background color.", pobjControl.BackColor());
  if (pobjControl.CaseTestingEnabled) {
    records.Add("KeepHistory", vntPropertyYesNo, "Determines whether a detailed case hisory is kept.", workflow->KeepHistory, yesNo);
    records.Add("CaseTracking", vntPropertyYesNo, "Turns token tracking on or off.", workflow->CaseTracking,
                {{"On", true}, {"Off", false}});
  }
  records.Add("ShowGuards", vntPropertyYesNo, "Determines if arc guards are displayed.", workflow->ShowGuards, yesNo);
  records.Add("ShowWeights", vntPropertyYesNo, "Determines if arc weights are displayed.", workflow->ShowWeights, yesNo);
  return records.Done();
}

void StoreProperty(Vantrel& pobjControl, const std::string& pstrPropName, const Variant& pvarValue) {
  if (StoreInWorkflow(pobjControl, pstrPropName, pvarValue)) {
    ShownBy(pobjControl).Dirty(true);
  } else if (pstrPropName == "ShowGuards") {
    ShowOnArcs(pobjControl, &Workflow::ShowGuards, pvarValue.ToBoolean());
  } else if (pstrPropName == "ShowWeights") {
    ShowOnArcs(pobjControl, &Workflow::ShowWeights, pvarValue.ToBoolean());
  } else if (pstrPropName == "BackColor") {
    SetBackColor(pobjControl, pvarValue.ToInt32());
  }
}

}  // namespace vantrel

#include "designer/ControlProperties.h"

#include "designer/HostEvents.h"
#include "model/DesignerState.h"
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

}  // namespace

std::string ControlProperties::UseModeName(std::int32_t plngMode) {
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

void ControlProperties::UseMode(UseModeConstant pintMode) {
  mobjControl.mobjState->UseMode = pintMode;
  if (const auto workflow = mobjControl.Workflow()) {
    if (pintMode == vntDesign) {
      for (Collection<Place>::Cursor cursor(workflow->Places); const Place* place = cursor.Next();) {
        if (auto* label = place->CountLabel.get()) label->Visible(false);
      }
    } else {
      mobjControl.FocusFrame.Visible(false);
    }
  }
  RaiseLater(mobjControl, &Vantrel::OnUseModeChange, pintMode);
}

void ControlProperties::ShowOnArcs(bool Workflow::*pFlag, bool pblnOn) {
  const auto workflow = mobjControl.Workflow();
  if (!workflow) throw Error(vntErrObjectNotSet);
  if ((*workflow).*pFlag == pblnOn) return;
  workflow->Dirty(true);
  (*workflow).*pFlag = pblnOn;
  for (Collection<Arc>::Cursor cursor(workflow->Arcs); Arc* arc = cursor.Next();) arc->Draw();
  const Element* framed = mobjControl.FocusFrame.SelectedControl().get();
  if (framed && !framed->Visible()) mobjControl.CurrentControl(nullptr);
}

void ControlProperties::BackColor(Color plngColor) {
  mobjControl.mBackColor = plngColor;
  mobjControl.ChartArea.BackColor(plngColor);
  mobjControl.Dirty(true);
}

void ControlProperties::ChooseBackColor() {
  const Ref<Vantrel> control(&mobjControl);
  const Color before = mobjControl.BackColor();
  Color chosen = before;
  {
    const HostTurn turn;
    chosen = ComDlg32(mobjControl.Tools()).SelectColor(before);
  }
  if (control && chosen != before) BackColor(chosen);
}

std::shared_ptr<PropertyCollection> ControlProperties::Records() {
  const auto workflow = mobjControl.Workflow();
  if (!workflow) return nullptr;
  const PropertyBuilder::Options yesNo = {{"True", true}, {"False", false}};
  PropertyBuilder records;
  auto& start = records.Add("StartPlace", vntPropertyText, "Name of the starting place", NameOrNone(workflow->StartPlace));
  AddPlaces(start, *workflow, &Node::InArcs);
  auto& end = records.Add("EndPlace", vntPropertyText, "Name of the ending place", NameOrNone(workflow->EndPlace()));
  AddPlaces(end, *workflow, &Node::OutArcs);
  records.Add("BackColor", vntPropertyColor, "Chart's background color.", mobjControl.BackColor());
  if (mobjControl.CaseTestingEnabled) {
    records.Add("KeepHistory", vntPropertyYesNo, "Determines whether a detailed case hisory is kept.", workflow->KeepHistory, yesNo);
    records.Add("CaseTracking", vntPropertyYesNo, "Turns token tracking on or off.", workflow->CaseTracking,
                {{"On", true}, {"Off", false}});
  }
  records.Add("ShowGuards", vntPropertyYesNo, "Determines if arc guards are displayed.", workflow->ShowGuards, yesNo);
  records.Add("ShowWeights", vntPropertyYesNo, "Determines if arc weights are displayed.", workflow->ShowWeights, yesNo);
  return records.Done();
}

bool ControlProperties::StoreInWorkflow(const std::string& pstrPropName, const Variant& pvarValue) {
  if (pstrPropName == "StartPlace") {
    Shown().StartPlace = FindByName(Shown().Places, pvarValue.ToText());
  } else if (pstrPropName == "EndPlace") {
    Shown().EndPlace(FindByName(Shown().Places, pvarValue.ToText()));
  } else if (pstrPropName == "KeepHistory") {
    Shown().KeepHistory = pvarValue.ToBoolean();
  } else if (pstrPropName == "CaseTracking") {
    Shown().CaseTracking = pvarValue.ToBoolean();
  } else if (pstrPropName == "RunStyle") {
    Shown().RunStyle = static_cast<RunStyleConstant>(pvarValue.ToInt32());
  } else {
    return false;
  }
  return true;
}

void ControlProperties::Store(const std::string& pstrPropName, const Variant& pvarValue) {
  if (StoreInWorkflow(pstrPropName, pvarValue)) {
    Shown().Dirty(true);
  } else if (pstrPropName == "ShowGuards") {
    ShowGuards(pvarValue.ToBoolean());
  } else if (pstrPropName == "ShowWeights") {
    ShowWeights(pvarValue.ToBoolean());
  } else if (pstrPropName == "BackColor") {
    BackColor(pvarValue.ToInt32());
  }
}

}  // namespace vantrel

#include "designer/Vantrel.h"

#include "designer/Aligning.h"
#include "designer/ArcInserting.h"
#include "designer/ChartBuilder.h"
#include "designer/ChartFitting.h"
#include "designer/ChartRefresh.h"
#include "designer/ControlParts.h"
#include "designer/ControlProperties.h"
#include "designer/ControlScope.h"
#include "designer/Copying.h"
#include "designer/CurrentElement.h"
#include "designer/DefaultWorkflow.h"
#include "designer/Deleting.h"
#include "designer/ElementBinding.h"
#include "designer/Inserting.h"
#include "designer/Pasting.h"
#include "designer/PopupMenus.h"
#include "designer/Selecting.h"

namespace vantrel {

Vantrel::Vantrel(Toolkit& pobjToolkit)
    : mobjParts(std::make_unique<ControlParts>(*this)),
      ImageList(mobjParts->State.Images),
      FocusFrame(*this),
      Input(*this),
      VNTRDB(std::make_shared<vantrel::VNTRDB>()),
      Clipboard(std::make_shared<ObjectCollection>()),
      Dialogs(std::make_shared<vantrel::Dialogs>()),
      TestCommands(std::make_shared<vantrel::TestCommands>()),
      mobjToolkit(pobjToolkit) {
  BackColor(kWhite);
}

// The parts go first: what the model's objects do when they end may still need the chart.
Vantrel::~Vantrel() {
  const auto dialogs = Dialogs;
  dialogs->CloseAll();
  mobjParts = nullptr;
}

const std::shared_ptr<vantrel::Workflow>& Vantrel::Workflow() const { return mobjParts->Workflow; }

void Vantrel::Workflow(const std::shared_ptr<vantrel::Workflow>& pobjWorkflow) {
  const ControlScope scope(*this);
  ShowWorkflow(*this, pobjWorkflow);
}

UseModeConstant Vantrel::UseMode() const { return mobjParts->State.UseMode; }

void Vantrel::UseMode(UseModeConstant pintMode) {
  const ControlScope scope(*this);
  SetUseMode(*this, pintMode);
}

void Vantrel::Dirty(bool pblnDirty) {
  mblnDirty = pblnDirty;
  RaiseLater(*this, &Vantrel::OnDirtyChange, pblnDirty);
}

bool Vantrel::ShowWeights() const { return Workflow() && Workflow()->ShowWeights; }

void Vantrel::ShowWeights(bool pblnOn) {
  const ControlScope scope(*this);
  ShowOnArcs(*this, &vantrel::Workflow::ShowWeights, pblnOn);
}

bool Vantrel::ShowGuards() const { return Workflow() && Workflow()->ShowGuards; }

void Vantrel::ShowGuards(bool pblnOn) {
  const ControlScope scope(*this);
  ShowOnArcs(*this, &vantrel::Workflow::ShowGuards, pblnOn);
}

Color Vantrel::BackColor() const { return mobjParts->BackColor; }

void Vantrel::BackColor(Color plngColor) {
  const ControlScope scope(*this);
  SetBackColor(*this, plngColor);
}

RunStyleConstant Vantrel::RunStyle() const { return mobjParts->RunStyle; }

void Vantrel::RunStyle(RunStyleConstant pStyle) {
  mobjParts->RunStyle = pStyle;
  if (Workflow()) Workflow()->RunStyle = pStyle;
}

bool Vantrel::LockControls() const { return mobjParts->LockControls; }

void Vantrel::LockControls(bool pblnOn) {
  mobjParts->LockControls = pblnOn;
  if (Workflow()) Workflow()->LockControls = pblnOn;
}

bool Vantrel::RestrictTesting() const { return mobjParts->RestrictTesting; }

void Vantrel::RestrictTesting(bool pblnOn) { mobjParts->RestrictTesting = pblnOn; }

const std::shared_ptr<vantrel::Object>& Vantrel::CurrentObject() const { return mobjParts->CurrentObject; }

void Vantrel::CurrentObject(const std::shared_ptr<vantrel::Object>& pobjObject) { mobjParts->CurrentObject = pobjObject; }

const Ref<Element>& Vantrel::CurrentControl() const { return mobjParts->CurrentControl; }

void Vantrel::CurrentControl(const Ref<Element>& pobjElement) {
  const ControlScope scope(*this);
  SetCurrentControl(*this, pobjElement);
}

const std::shared_ptr<ObjectCollection>& Vantrel::Selection() const { return mobjParts->Selection; }

void Vantrel::Selection(const std::shared_ptr<ObjectCollection>& pcolObjects) {
  const ControlScope scope(*this);
  ReplaceSelection(*this, pcolObjects);
}

std::shared_ptr<ModelObject> Vantrel::GetVNTRObject(const std::string& pstrKey) const {
  const Ref<vantrel::Workflow> workflow(Workflow());
  if (pstrKey.starts_with("Transition")) return workflow->Transitions.Item(pstrKey);
  if (pstrKey.starts_with("Place")) return workflow->Places.Item(pstrKey);
  if (pstrKey.starts_with("Arc")) return workflow->Arcs.Item(pstrKey);
  if (pstrKey.starts_with("Vector")) return workflow->Vectors.Item(pstrKey);
  if (pstrKey.starts_with("Notation")) return workflow->Notations.Item(pstrKey);
  return nullptr;
}

SharedProperties Vantrel::GetProperties() { return PropertiesOf(*this); }

void Vantrel::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) {
  const ControlScope scope(*this);
  Guarded([&] { StoreProperty(*this, pstrPropName, pvarValue); });
}

std::shared_ptr<vantrel::Workflow> Vantrel::NewWorkflow() {
  const ControlScope scope(*this);
  auto workflow = MakeDefaultWorkflow(ChartArea.ScaleHeight() / 2);
  ShowWorkflow(*this, workflow);
  return workflow;
}

void Vantrel::Clear() {
  const ControlScope scope(*this);
  ClearChart(*this);
}

void Vantrel::Refresh() {
  const ControlScope scope(*this);
  RefreshChart(*this);
}

void Vantrel::Reset() {
  const ControlScope scope(*this);
  ResetChart(*this);
}

void Vantrel::SetBackcolor() {
  const ControlScope scope(*this);
  ChooseBackColor(*this);
}

void Vantrel::FitChart() {
  const ControlScope scope(*this);
  vantrel::FitChart(*this);
  RefreshChart(*this);
}

void Vantrel::ExtendScrollRange() { vantrel::ExtendScrollRange(*this); }

void Vantrel::BindPlace(Place& pobjPlace) {
  const ControlScope scope(*this);
  Bind(*this, pobjPlace);
}

void Vantrel::BindTransition(Transition& pobjTransition) {
  const ControlScope scope(*this);
  Bind(*this, pobjTransition);
}

void Vantrel::BindArc(Arc& pobjArc) {
  const ControlScope scope(*this);
  Bind(*this, pobjArc);
}

void Vantrel::BindNotation(Notation& pobjNotation) {
  const ControlScope scope(*this);
  Bind(*this, pobjNotation);
}

std::shared_ptr<Place> Vantrel::InsertPlace(const std::string& pstrCaption) {
  const ControlScope scope(*this);
  return vantrel::InsertPlace(*this, pstrCaption);
}

std::shared_ptr<Transition> Vantrel::InsertTransition(const std::string& pstrCaption) {
  const ControlScope scope(*this);
  return vantrel::InsertTransition(*this, pstrCaption);
}

std::shared_ptr<Arc> Vantrel::InsertArc(const std::shared_ptr<ModelObject>& pobjFrom, const std::shared_ptr<ModelObject>& pobjTo) {
  const ControlScope scope(*this);
  return vantrel::InsertArc(*this, pobjFrom, pobjTo);
}

bool Vantrel::IsInsertingArc() const { return mobjParts->InsertingArc; }

void Vantrel::StartArcInsert() {
  const ControlScope scope(*this);
  vantrel::StartArcInsert(*this);
}

void Vantrel::EndArcInsert() { vantrel::EndArcInsert(*this); }

std::shared_ptr<Notation> Vantrel::AddNotation() {
  const ControlScope scope(*this);
  return vantrel::AddNotation(*this);
}

void Vantrel::InsertElbow() {
  const ControlScope scope(*this);
  vantrel::InsertElbow(*this);
}

void Vantrel::RemoveElbow() {
  const ControlScope scope(*this);
  vantrel::RemoveElbow(*this);
}

void Vantrel::Delete() {
  const ControlScope scope(*this);
  DeleteSelection(*this);
}

void Vantrel::DeleteObject(const std::shared_ptr<ModelObject>& pobjObject) {
  const ControlScope scope(*this);
  vantrel::DeleteObject(*this, pobjObject);
}

std::shared_ptr<ObjectCollection> Vantrel::GetSelections() const { return ObjectsInside(*this, MultiSelect.Area()); }

std::shared_ptr<ObjectCollection> Vantrel::SelectAll() {
  const ControlScope scope(*this);
  auto objects = AllObjects(*this);
  ReplaceSelection(*this, objects);
  return objects;
}

bool Vantrel::InSelections(const std::shared_ptr<ModelObject>& pobjObject) const {
  for (const auto& object : *Selection()) {
    if (object == pobjObject) return true;
  }
  return false;
}

void Vantrel::Copy() {
  const ControlScope scope(*this);
  CopySelection(*this);
}

void Vantrel::Paste() {
  const ControlScope scope(*this);
  PasteClipboard(*this);
}

void Vantrel::AlignSelection(const std::string& pstrDirection) {
  const ControlScope scope(*this);
  vantrel::AlignSelection(*this, pstrDirection);
}

MenuItem& Vantrel::DesignMenu() { return mobjParts->Menus->Design(); }

MenuItem& Vantrel::TestMenu() { return mobjParts->Menus->Test(); }

MenuItem& Vantrel::RoleMenu() { return mobjParts->Menus->Role(); }

void Vantrel::ShowDesignMenu() {
  const auto menus = mobjParts->Menus;
  if (const HostTurn turn(*this); turn) mobjToolkit.ShowPopup(menus->Design());
}

void Vantrel::ShowTestMenu() {
  const auto menus = mobjParts->Menus;
  if (const HostTurn turn(*this); turn) mobjToolkit.ShowPopup(menus->Test());
}

void Vantrel::ShowObjectProperties() {
  if (!PropertyPopupEnabled) return;
  const ControlScope scope(*this);
  const auto dialogs = Dialogs;
  auto object = CurrentControl() ? GetVNTRObject(CurrentControl()->Tag()) : nullptr;
  if (const auto vector = std::dynamic_pointer_cast<Vector>(object)) object = vector->Arc().Lock();
  if (const HostTurn turn(*this); turn) dialogs->ShowProperties(*this, object ? *object : *this);
}

}  // namespace vantrel

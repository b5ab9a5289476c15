#include "designer/Vantrel.h"

#include "designer/Aligning.h"
#include "designer/ArcInserting.h"
#include "designer/ChartBuilder.h"
#include "designer/ChartFitting.h"
#include "designer/ChartRefresh.h"
#include "designer/ControlHost.h"
#include "designer/ControlProperties.h"
#include "designer/ControlScope.h"
#include "designer/Copying.h"
#include "designer/CurrentElement.h"
#include "designer/DefaultWorkflow.h"
#include "designer/Deleting.h"
#include "designer/ElementBinding.h"
#include "designer/Inserting.h"
#include "designer/PastePlace.h"
#include "designer/Pasting.h"
#include "designer/PopupMenus.h"
#include "designer/Selecting.h"

namespace vantrel {

Vantrel::Vantrel(Toolkit& pobjToolkit)
    : mobjState(std::make_unique<DesignerState>()),
      ImageList(mobjState->Images),
      FocusFrame(*this),
      Input(*this),
      VNTRDB(std::make_shared<vantrel::VNTRDB>()),
      Clipboard(std::make_shared<ObjectCollection>()),
      Dialogs(std::make_shared<vantrel::Dialogs>()),
      TestCommands(std::make_shared<vantrel::TestCommands>()),
      mobjToolkit(pobjToolkit),
      mobjHost(std::make_unique<ControlHost>(*this)),
      mobjMenus(std::make_shared<PopupMenus>(*this)),
      mobjPastePlace(std::make_unique<PastePlace>()),
      mcolSelection(std::make_shared<ObjectCollection>()) {
  mobjState->Host = mobjHost.get();
  BackColor(kWhite);
}

Vantrel::~Vantrel() {
  const auto dialogs = Dialogs;
  dialogs->CloseAll();
  mTokenAdded.Disconnect();
  if (mWorkflow) mWorkflow->ShownBy(nullptr);
  mobjState = nullptr;
}

void Vantrel::Workflow(const std::shared_ptr<vantrel::Workflow>& pobjWorkflow) {
  const ControlScope scope(*this);
  ChartBuilder(*this).Show(pobjWorkflow);
}

void Vantrel::UseMode(UseModeConstant pintMode) {
  const ControlScope scope(*this);
  ControlProperties(*this).UseMode(pintMode);
}

std::string Vantrel::UseModeName(std::int32_t plngMode) { return ControlProperties::UseModeName(plngMode); }

void Vantrel::Dirty(bool pblnDirty) {
  mblnDirty = pblnDirty;
  RaiseLater(*this, &Vantrel::OnDirtyChange, pblnDirty);
}

bool Vantrel::ShowWeights() const { return mWorkflow && mWorkflow->ShowWeights; }

void Vantrel::ShowWeights(bool pblnOn) {
  const ControlScope scope(*this);
  ControlProperties(*this).ShowWeights(pblnOn);
}

bool Vantrel::ShowGuards() const { return mWorkflow && mWorkflow->ShowGuards; }

void Vantrel::ShowGuards(bool pblnOn) {
  const ControlScope scope(*this);
  ControlProperties(*this).ShowGuards(pblnOn);
}

void Vantrel::BackColor(Color plngColor) {
  const ControlScope scope(*this);
  ControlProperties(*this).BackColor(plngColor);
}

void Vantrel::RunStyle(RunStyleConstant pStyle) {
  mRunStyle = pStyle;
  if (mWorkflow) mWorkflow->RunStyle = pStyle;
}

void Vantrel::LockControls(bool pblnOn) {
  mblnLockControls = pblnOn;
  if (mWorkflow) mWorkflow->LockControls = pblnOn;
}

void Vantrel::CurrentControl(const Ref<Element>& pobjElement) {
  const ControlScope scope(*this);
  CurrentElement(*this).Set(pobjElement);
}

void Vantrel::Selection(const std::shared_ptr<ObjectCollection>& pcolObjects) {
  const ControlScope scope(*this);
  Selecting(*this).Replace(pcolObjects);
}

std::shared_ptr<ModelObject> Vantrel::GetVNTRObject(const std::string& pstrKey) const {
  const Ref<vantrel::Workflow> workflow(mWorkflow);
  if (pstrKey.starts_with("Transition")) return workflow->Transitions.Item(pstrKey);
  if (pstrKey.starts_with("Place")) return workflow->Places.Item(pstrKey);
  if (pstrKey.starts_with("Arc")) return workflow->Arcs.Item(pstrKey);
  if (pstrKey.starts_with("Vector")) return workflow->Vectors.Item(pstrKey);
  if (pstrKey.starts_with("Notation")) return workflow->Notations.Item(pstrKey);
  return nullptr;
}

std::shared_ptr<PropertyCollection> Vantrel::GetProperties() { return ControlProperties(*this).Records(); }

void Vantrel::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) {
  const ControlScope scope(*this);
  Guarded([&] { ControlProperties(*this).Store(pstrPropName, pvarValue); });
}

std::shared_ptr<vantrel::Workflow> Vantrel::NewWorkflow() {
  const ControlScope scope(*this);
  auto workflow = MakeDefaultWorkflow(ChartArea.ScaleHeight() / 2);
  Workflow(workflow);
  return workflow;
}

void Vantrel::Clear() {
  const ControlScope scope(*this);
  ChartBuilder(*this).Clear();
}

void Vantrel::Refresh() {
  const ControlScope scope(*this);
  ChartRefresh(*this).Refresh();
}

void Vantrel::Reset() {
  const ControlScope scope(*this);
  ChartRefresh(*this).Reset();
}

void Vantrel::SetBackcolor() {
  const ControlScope scope(*this);
  ControlProperties(*this).ChooseBackColor();
}

void Vantrel::FitChart() {
  const ControlScope scope(*this);
  ChartFitting(*this).Fit();
  Refresh();
}

void Vantrel::ExtendScrollRange() { ChartFitting(*this).ExtendScrollRange(); }

void Vantrel::BindPlace(Place& pobjPlace) {
  const ControlScope scope(*this);
  ElementBinding(*this).Bind(pobjPlace);
}

void Vantrel::BindTransition(Transition& pobjTransition) {
  const ControlScope scope(*this);
  ElementBinding(*this).Bind(pobjTransition);
}

void Vantrel::BindArc(Arc& pobjArc) {
  const ControlScope scope(*this);
  ElementBinding(*this).Bind(pobjArc);
}

void Vantrel::BindNotation(Notation& pobjNotation) {
  const ControlScope scope(*this);
  ElementBinding(*this).Bind(pobjNotation);
}

std::shared_ptr<Place> Vantrel::InsertPlace(const std::string& pstrCaption) {
  const ControlScope scope(*this);
  return Inserting(*this).InsertPlace(pstrCaption);
}

std::shared_ptr<Transition> Vantrel::InsertTransition(const std::string& pstrCaption) {
  const ControlScope scope(*this);
  return Inserting(*this).InsertTransition(pstrCaption);
}

std::shared_ptr<Arc> Vantrel::InsertArc(const std::shared_ptr<ModelObject>& pobjFrom, const std::shared_ptr<ModelObject>& pobjTo) {
  const ControlScope scope(*this);
  return ArcInserting(*this).Insert(pobjFrom, pobjTo);
}

void Vantrel::StartArcInsert() {
  const ControlScope scope(*this);
  ArcInserting(*this).Start();
}

void Vantrel::EndArcInsert() { ArcInserting(*this).End(); }

std::shared_ptr<Notation> Vantrel::AddNotation() {
  const ControlScope scope(*this);
  return Inserting(*this).AddNotation();
}

void Vantrel::InsertElbow() {
  const ControlScope scope(*this);
  Inserting(*this).InsertElbow();
}

void Vantrel::RemoveElbow() {
  const ControlScope scope(*this);
  Inserting(*this).RemoveElbow();
}

void Vantrel::Delete() {
  const ControlScope scope(*this);
  Deleting(*this).DeleteSelection();
}

void Vantrel::DeleteObject(const std::shared_ptr<ModelObject>& pobjObject) {
  const ControlScope scope(*this);
  Deleting(*this).DeleteObject(pobjObject);
}

std::shared_ptr<ObjectCollection> Vantrel::GetSelections() const {
  return Selecting::InRectangle(mWorkflow.get(), MultiSelect.Area(), !Comfort.ChosenIsSeen);
}

std::shared_ptr<ObjectCollection> Vantrel::SelectAll() {
  const ControlScope scope(*this);
  auto objects = Selecting::All(mWorkflow.get(), !Comfort.ChosenIsSeen);
  Selecting(*this).Replace(objects);
  return objects;
}

bool Vantrel::InSelections(const std::shared_ptr<ModelObject>& pobjObject) const {
  for (const auto& object : *mcolSelection) {
    if (object == pobjObject) return true;
  }
  return false;
}

void Vantrel::Copy() {
  const ControlScope scope(*this);
  Copying(*this).Copy();
}

void Vantrel::Paste() {
  const ControlScope scope(*this);
  Pasting(*this).Paste();
}

void Vantrel::AlignSelection(const std::string& pstrDirection) {
  const ControlScope scope(*this);
  Aligning(*this).Align(pstrDirection);
}

MenuItem& Vantrel::DesignMenu() { return mobjMenus->Design(); }

MenuItem& Vantrel::TestMenu() { return mobjMenus->Test(); }

MenuItem& Vantrel::RoleMenu() { return mobjMenus->Role(); }

void Vantrel::ShowDesignMenu() {
  const auto menus = mobjMenus;
  MenuItem& menu = DesignMenu();
  const HostTurn turn;
  mobjToolkit.ShowPopup(menu);
}

void Vantrel::ShowTestMenu() {
  const auto menus = mobjMenus;
  MenuItem& menu = TestMenu();
  const HostTurn turn;
  mobjToolkit.ShowPopup(menu);
}

void Vantrel::ShowObjectProperties() {
  if (!PropertyPopupEnabled) return;
  const ControlScope scope(*this);
  const auto dialogs = Dialogs;
  auto object = mobjCurrentControl ? GetVNTRObject(mobjCurrentControl->Tag()) : nullptr;
  if (const auto vector = std::dynamic_pointer_cast<Vector>(object)) object = vector->Arc().Lock();
  const HostTurn turn;
  dialogs->ShowProperties(*this, object ? *object : *this);
}

}  // namespace vantrel

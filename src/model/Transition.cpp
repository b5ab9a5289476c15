#include "model/Transition.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "model/DesignerCall.h"
#include "model/PropertyBuilder.h"
#include "model/Workflow.h"
#include "model/game/Enabling.h"
#include "model/game/Firing.h"
#include "util/Lookup.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

constexpr const char* kEnabledPicture = "TransitionEnabled";
constexpr const char* kDisabledPicture = "Transition";

}  // namespace

Transition::Transition() : Node(kEnabledPicture, kDisabledPicture) {}

Transition::Transition(vantrel::Workflow& pobjWorkflow) : Node(kEnabledPicture, kDisabledPicture, pobjWorkflow) {}

namespace {

// Lets go of embedded workflows one after the other: nested thousands deep, they would end inside one another.
void LetGo(std::shared_ptr<Object> pobjEmbedded) {
  static std::vector<std::shared_ptr<Object>>* outermost = nullptr;
  if (outermost) return outermost->push_back(std::move(pobjEmbedded));
  std::vector<std::shared_ptr<Object>> waiting = {std::move(pobjEmbedded)};
  outermost = &waiting;
  while (!waiting.empty()) {
    const auto last = std::move(waiting.back());
    waiting.pop_back();
  }
  outermost = nullptr;
}

}  // namespace

Transition::~Transition() {
  LetGo(mobjSubflow);
  Subflow(nullptr);
  LetGo(std::move(mobjObject));
  for (auto* element : {Image.get(), InConnector.get(), OutConnector.get(), RolesImage.get()}) {
    if (element) element->Unload();
  }
  if (CaptionLabel) CaptionLabel->Unload();
  if (RolesList) RolesList->Unload();
}

void Transition::Name(const std::string& pstrName) {
  const auto* workflow = Workflow.get();
  const bool wantsName = workflow && pstrName.empty();
  if (workflow && !wantsName && !IsNameFree(workflow->Transitions, pstrName)) {
    MsgBox("There is already another transition on this workflow with that name.");
    return;
  }
  mName = wantsName ? NextName(workflow->Transitions, "Transition") : pstrName;
  Dirty = true;
}

void Transition::InputPosition(std::int16_t pintPosition) {
  Node::InputPosition(pintPosition);
  Dirty = true;
}

void Transition::Visible(bool pblnOn) {
  mVisible = pblnOn;
  ShowElements(pblnOn);
}

void Transition::Enabled(bool pblnEnabled) {
  if (SwitchEnabled(pblnEnabled)) Fire();
}

void Transition::PullTrigger() { Fire(); }

void Transition::Fire(const std::shared_ptr<WorkCase>& pobjWorkCase) {
  const DesignerCall call(Workflow);
  TokenGame::Run<Firing>(Share(), pobjWorkCase);
}

bool Transition::SwitchEnabled(bool pblnEnabled) {
  mblnEnabled = pblnEnabled;
  if (auto* workflow = Workflow.get()) {
    auto& stack = workflow->FiringStack;
    const bool known = stack.IsAt(mlngStackRank, this);
    if (pblnEnabled && !known) mlngStackRank = stack.AddIfMissing(Key, [this] { return Share(); });
    if (!pblnEnabled && known) stack.TakeAtRank(mlngStackRank);
    if (!pblnEnabled && !known) stack.RemoveIfThere(Key);
  }
  Draw();  // may run listeners, which may switch it again
  return pblnEnabled && mblnEnabled && mTriggerType == vntAutomatic;
}

void Transition::Object(const std::shared_ptr<vantrel::Object>& pobjObject) {
  const auto workflow = std::dynamic_pointer_cast<const vantrel::Workflow>(pobjObject);
  if (workflow && Workflow && workflow->Embeds(*Workflow)) {
    throw Error(vntErrInvalidCall, "A workflow cannot be embedded in itself: transition \"" + mName + "\".");
  }
  mobjObject = pobjObject;
}

std::shared_ptr<vantrel::Workflow> Transition::EmbeddedWorkflow() const { return std::dynamic_pointer_cast<vantrel::Workflow>(mobjObject); }

void Transition::CancelRuns() {
  while (!mcolRuns.empty()) {
    Reservation chosen = mcolRuns.front()->End();
    chosen.GiveBack();
    for (const auto& token : chosen.Tokens()) {
      if (token) Enabling::SettleAround(*token);
    }
  }
}

void Transition::Subflow(const std::shared_ptr<vantrel::Workflow>& pobjSubflow) {
  if (mobjSubflow == pobjSubflow) return;
  if (mobjSubflow) mobjSubflow->RemoveObserver(*this);
  mobjSubflow = pobjSubflow;
  if (mobjSubflow) mobjSubflow->AddObserver(*this);
}

void Transition::Draw() {
  if (!mVisible) return;
  DrawImage(mblnEnabled);
  DrawCaption();
  DrawConnectors(0);
  DrawArcs();
  DrawRoles();
}

void Transition::DrawRoles() {
  const auto* image = Image.get();
  if (!image) return;
  if (auto* roles = RolesImage.get()) {
    roles->MoveTo(image->Left(), image->Top() + image->Height() - roles->Height());
    roles->BringToFront();
  }
  if (auto* list = RolesList.get()) list->MoveTo(Left(), image->Top() + image->Height());
}

SharedProperties Transition::GetProperties() {
  PropertyBuilder records;
  records.Add("Name", vntPropertyText, "User provided name (should be unique).", mName);
  records.Add("Caption", vntPropertyText, "Label used for charts and reports.", mCaption);
  records.Add("Description", vntPropertyMultiLine, "Place description.", Description);
  records.Add("OutputType", vntPropertyChoice, "Determines how tokens are distributed on out arcs.", std::int32_t{mOutputType},
              {{"Broadcast", std::int32_t{vntBroadcast}},
               {"Select", std::int32_t{vntSelect}},
               {"Distribute", std::int32_t{vntDistribute}},
               {"Programmed", std::int32_t{vntProgrammed}}});
  records.Add("TriggerType", vntPropertyChoice, "Determines how transition is triggered", std::int32_t{mTriggerType},
              {{"User", std::int32_t{vntUser}},
               {"Automatic", std::int32_t{vntAutomatic}},
               {"Message", std::int32_t{vntMessage}},
               {"Timed", std::int32_t{vntTimed}}});
  records.Add("ObjectClassName", vntPropertyText, "Class of the object embedded in the transition.", ObjectClassName);
  records.Add("ObjectName", vntPropertyText, "Name of the object embedded in the transition.", ObjectName);
  records.AddPositions(mInputPosition, mOutputPosition);
  records.Add("Tag", vntPropertyText, "", Tag);
  return records.Done();
}

void Transition::SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) {
  if (!pcolProperties) throw Error(vntErrObjectNotSet);
  const auto keeper = KeepAlive();
  const auto records = pcolProperties;  // NOLINT(performance-unnecessary-copy-initialization): it may be the object's share
  for (const auto& record : *records) {
    const Variant value = record->Value;
    if (record->Name == "OutputType") {
      mOutputType = static_cast<OutputTypes>(value.ToInt32());
    } else if (record->Name == "TriggerType") {
      mTriggerType = static_cast<TriggerTypes>(value.ToInt32());
    } else if (!StoreField(record->Name, value)) {
      SetProperty(record->Name, value);
    }
  }
}

void Transition::Store(const std::string& pstrPropName, const Variant& pvarValue) {
  if (StoreSetting(pstrPropName, pvarValue)) return;
  if (pstrPropName == "Name") {
    Name(pvarValue.ToText());
  } else if (pstrPropName == "Roles") {
    Roles = pvarValue.ToObjectOf<PropertyCollection>();
  } else if (pstrPropName == "OutputType") {
    mOutputType = static_cast<OutputTypes>(pvarValue.ToInt32());
  } else if (pstrPropName == "TriggerType") {
    mTriggerType = static_cast<TriggerTypes>(pvarValue.ToInt32());
  } else if (pstrPropName == "Action") {
    Action = pvarValue.ToText();
  } else {
    MsgBox("Object doesn't have a property " + pstrPropName + ".");
  }
}

void Transition::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) {
  const auto keeper = KeepAlive();
  if (!Guarded([&] { Store(pstrPropName, pvarValue); })) return;
  Dirty = true;
  MarkWorkflowDirty();
}

std::shared_ptr<Transition> Transition::Clone() const {
  auto clone = std::make_shared<Transition>();
  clone->CopyLook(*this);
  clone->Object(mobjObject);
  clone->ObjectClassName = ObjectClassName;
  clone->ObjectName = ObjectName;
  clone->Duration = Duration;
  clone->DurationStdDev = DurationStdDev;
  clone->InputPosition(mInputPosition);
  clone->OutputPosition(mOutputPosition);
  clone->mOutputType = mOutputType;
  clone->mTriggerType = mTriggerType;
  clone->SubflowId = SubflowId;
  clone->Action = Action;
  clone->Roles = Roles;
  clone->Dirty = true;
  return clone;
}

}  // namespace vantrel

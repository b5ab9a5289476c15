#include "model/Place.h"

#include "model/Arc.h"
#include "model/DesignerCall.h"
#include "model/PropertyBuilder.h"
#include "model/Workflow.h"
#include "model/game/Arrival.h"
#include "model/game/Departure.h"
#include "model/game/TokenIndex.h"
#include "model/game/TokenRules.h"
#include "util/Lookup.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

constexpr const char* kEnabledImage = "PlaceGreen";
constexpr const char* kDisabledImage = "Place";
constexpr float kCountGap = 75;  // twips between the image and the token count under it

}  // namespace

Place::Place() : Node(kEnabledImage, kDisabledImage), TokenProperties(std::make_shared<PropertyCollection>()) {}

Place::Place(vantrel::Workflow& pobjWorkflow)
    : Node(kEnabledImage, kDisabledImage, pobjWorkflow), TokenProperties(std::make_shared<PropertyCollection>()) {}

Place::~Place() {
  for (Arc* arc : mcolArcs) arc->Place.mlngPosition = PlaceOfArc::kUnlisted;
}

void Place::AddToken(const std::shared_ptr<Token>& pobjToken) {
  if (!pobjToken) throw Error(vntErrInvalidCall);
  const DesignerCall call(Workflow);
  TokenGame::Run<Arrival>(Share(), pobjToken);
}

void Place::PutBack(const std::shared_ptr<Token>& pobjToken) {
  if (!pobjToken) throw Error(vntErrInvalidCall);
  Arrival::PutBack(Share(), pobjToken);
}

void Place::RemoveToken(const std::shared_ptr<Token>& pobjToken) {
  const DesignerCall call(Workflow);
  TokenGame::Run<Departure>(Share(), pobjToken, Departure::kByHand);
}

void Place::TokensChanged() {
  TokenRules::Forget(*this);
  if (auto* workflow = Workflow.get()) workflow->CountCaseChange();
}

void Place::TokenCount(float psngCount) {
  mTokenCount = psngCount;
  if (!mVisible || DesignerOf(Workflow).UseMode == vntRun) return;
  if (Label* label = CountLabel.get()) label->Caption(Variant(psngCount).ToText());
  Draw();
}

void Place::Name(const std::string& pstrName) {
  if (Workflow && !IsNameFree(Workflow->Places, pstrName)) {
    MsgBox("There is already another place on this workflow with that name.");
    return;
  }
  mName = pstrName;
}

void Place::Visible(bool pblnOn) {
  mVisible = pblnOn;
  if (!Image) return;
  ShowElements(pblnOn);
  const auto* workflow = Workflow.get();
  for (Arc* arc : mcolArcs) {
    if (workflow && workflow->Has(*arc)) arc->Visible(pblnOn);
  }
  if (pblnOn) Draw();
}

void Place::CaseEnabled(bool pblnOn) {
  mblnCaseEnabled = pblnOn;
  if (auto* image = Image.get()) image->Picture(DesignerOf(Workflow).Images->Find(pblnOn ? EnabledImageKey : DisabledImageKey));
}

void Place::Draw() {
  if (!mVisible || DesignerOf(Workflow).UseMode == vntRun || !Workflow) return;
  DrawImage(!mcolTokens.IsEmpty());
  if (Label* label = CaptionLabel.get()) label->Resize(CaptionWidth, CaptionHeight);
  DrawCaption();
  DrawConnectors(1);
  DrawCount();
  DrawArcs();
}

void Place::DrawCount() {
  Label* label = CountLabel.get();
  const auto* image = Image.get();
  if (!label || !image) return;
  label->MoveTo(image->Left() + (image->Width() - label->Width()) / 2, image->Top() + image->Height() + kCountGap);
  label->BringToFront();
  label->Visible(!label->Caption().empty() && label->Caption() != "0");
}

SharedProperties Place::GetProperties() {
  PropertyBuilder records;
  records.Add("Name", vntPropertyText, "Unique name identifying this place on the workflow.", mName);
  records.Add("Caption", vntPropertyText, "Label used for charts and reports.", mCaption);
  records.Add("Description", vntPropertyMultiLine, "Place description.", Description);
  records.Add("SelectionType", vntPropertyChoice, "Determines how tokens are selected when there is more than one option.",
              std::int32_t{SelectionType}, {{"FIFO", std::int32_t{vntSelectionTypeFIFO}}, {"LIFO", std::int32_t{vntSelectionTypeLIFO}}});
  records.Add("Object", vntPropertyText, "Object linked to this place.", mobjObject ? mobjObject->NameText() : std::string());
  records.AddPositions(mInputPosition, mOutputPosition);
  records.Add("Tag", vntPropertyText, "", Tag);
  records.Add("TokenProperties", vntPropertyCollection, "Properties assigned tokens that occupied this place.", TokenProperties);
  return records.Done();
}

void Place::SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) {
  if (!pcolProperties) throw Error(vntErrObjectNotSet);
  const auto keeper = KeepAlive();
  const auto records = pcolProperties;  // NOLINT(performance-unnecessary-copy-initialization): it may be the object's share
  for (const auto& record : *records) {
    const Variant value = record->Value;
    if (!StoreField(record->Name, value)) SetProperty(record->Name, value);
  }
}

void Place::Store(const std::string& pstrPropName, const Variant& pvarValue) {
  if (StoreSetting(pstrPropName, pvarValue)) return;
  if (pstrPropName == "Name") {
    Name(pvarValue.ToText());
  } else if (pstrPropName == "SelectionType") {
    SelectionType = static_cast<SelectionTypes>(pvarValue.ToInt32());
  } else if (pstrPropName == "TokenProperties") {
    TokenProperties = pvarValue.ToObjectOf<PropertyCollection>();
  }
}

void Place::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) {
  const auto keeper = KeepAlive();
  if (!Guarded([&] { Store(pstrPropName, pvarValue); })) return;
  mblnDirty = true;
  MarkWorkflowDirty();
}

std::shared_ptr<Place> Place::Clone() const {
  auto clone = std::make_shared<Place>();
  clone->CopyLook(*this);
  clone->SelectionType = SelectionType;
  clone->OutputPosition(mOutputPosition);
  clone->Description = Description;
  clone->mblnDirty = mblnDirty;
  if (TokenProperties) {
    for (const auto& record : *TokenProperties) clone->TokenProperties->Add(record->Copy());
  }
  return clone;
}

}  // namespace vantrel

#include "model/Node.h"

#include <cmath>

#include "model/Arc.h"
#include "model/DesignerState.h"
#include "model/VNTRGlobal.h"
#include "model/Workflow.h"

namespace vantrel {

namespace {

constexpr float kNarrowLabel = 30;  // twips; a narrower label was never fitted to its text

const char* InputPicture(std::int16_t pintSide) {
  switch (pintSide) {
    case vntTop:
      return "InputTop";
    case vntRight:
      return "InputRight";
    case vntBottom:
      return "InputBottom";
    case vntLeft:
      return "InputLeft";
    default:
      return "";
  }
}

const char* OutputPicture(std::int16_t pintSide) {
  switch (pintSide) {
    case vntTop:
    case vntBottom:
      return "OutputVertical";
    case vntRight:
    case vntLeft:
      return "OutputHorizontal";
    default:
      return "";
  }
}

// The extra twip keeps connectors clear of the image's border at odd sizes.
void PlaceConnector(Image& pobjConnector, const Image& pobjImage, std::int16_t pintSide, float psngLeftOutset) {
  const float left = pobjImage.Left(), top = pobjImage.Top(), width = pobjImage.Width(), height = pobjImage.Height();
  const float ownWidth = pobjConnector.Width(), ownHeight = pobjConnector.Height();
  const float acrossX = std::floor(left + width / 2 - ownWidth / 2) - 1;
  const float acrossY = std::floor(top + height / 2 - ownHeight / 2) + 1;
  switch (pintSide) {
    case vntTop:
      return pobjConnector.MoveTo(acrossX, top - ownHeight);
    case vntRight:
      return pobjConnector.MoveTo(left + width, acrossY);
    case vntBottom:
      return pobjConnector.MoveTo(acrossX, top + height);
    case vntLeft:
      return pobjConnector.MoveTo(psngLeftOutset > 0 ? std::floor(left - ownWidth) + psngLeftOutset : left - ownWidth, acrossY);
    default:
      return;
  }
}

}  // namespace

Node::Node(const char* pstrEnabledImageKey, const char* pstrDisabledImageKey)
    : Workflow(gobjVantrel->Workflow()),
      EnabledImageKey(pstrEnabledImageKey),
      DisabledImageKey(pstrDisabledImageKey),
      mInputPosition(gintInputPosition),
      mOutputPosition(gintOutputPosition),
      mTop(gobjVantrel->CurrentY()),
      mLeft(gobjVantrel->CurrentX()) {}

Node::Node(const char* pstrEnabledImageKey, const char* pstrDisabledImageKey, vantrel::Workflow& pobjWorkflow)
    : Workflow(&pobjWorkflow),
      EnabledImageKey(pstrEnabledImageKey),
      DisabledImageKey(pstrDisabledImageKey),
      mInputPosition(vntLeft),
      mOutputPosition(vntRight),
      mTop(pobjWorkflow.Chart().CurrentY()),
      mLeft(pobjWorkflow.Chart().CurrentX()) {
  const DesignerState& state = pobjWorkflow.Designer();
  if (state.Host->Workflow() == &pobjWorkflow) AssignSides(state.InputPosition, state.OutputPosition);
}

void Node::MarkWorkflowDirty() const {
  if (auto* workflow = Workflow.get()) workflow->Dirty(true);
}

void Node::Top(float psngTop) {
  mTop = psngTop;
  MarkDirty();
  Draw();
}

void Node::Left(float psngLeft) {
  mLeft = psngLeft;
  MarkDirty();
  Draw();
}

void Node::MoveTo(float psngLeft, float psngTop) {
  mLeft = psngLeft;
  mTop = psngTop;
  MarkDirty();
  Draw();
}

std::optional<Rect> Node::Bounds() const {
  const auto* image = Image.get();
  return Rect{mLeft, mTop, mLeft + (image ? image->Width() : 0), mTop + (image ? image->Height() : 0)};
}

void Node::AssignSides(std::int16_t pintInput, std::int16_t pintOutput) {
  mInputPosition = pintInput;
  mOutputPosition = pintOutput;
}

void Node::InputPosition(std::int16_t pintPosition) {
  mInputPosition = pintPosition;
  DesignerOf(Workflow).InputPosition = pintPosition;
  Draw();
}

void Node::OutputPosition(std::int16_t pintPosition) {
  mOutputPosition = pintPosition;
  DesignerOf(Workflow).OutputPosition = pintPosition;
  Draw();
  MarkDirty();
}

void Node::Caption(const std::string& pstrCaption) {
  mCaption = pstrCaption;
  if (Label* label = CaptionLabel.get()) {
    label->Caption(pstrCaption);
    FitLabel(*label, *DesignerOf(Workflow).Host);
    CaptionHeight = label->Height();
    CaptionWidth = label->Width();
  }
  MarkDirty();
}

void Node::CaptionOffsetTop(float psngOffset) {
  mCaptionOffsetTop = psngOffset;
  MarkDirty();
}

void Node::CaptionOffsetLeft(float psngOffset) {
  mCaptionOffsetLeft = psngOffset;
  MarkDirty();
}

void Node::Selected(bool pblnOn) {
  mSelected = pblnOn;
  if (auto* image = Image.get()) image->BorderStyle(pblnOn ? 1 : 0);
}

bool Node::StoreField(const std::string& pstrPropName, const Variant& pvarValue) {
  if (pstrPropName == "Name") {
    mName = pvarValue.ToText();
  } else if (pstrPropName == "Caption") {
    mCaption = pvarValue.ToText();
  } else if (pstrPropName == "InputPosition") {
    mInputPosition = pvarValue.ToInt16();
  } else if (pstrPropName == "OutputPosition") {
    mOutputPosition = pvarValue.ToInt16();
  } else {
    return false;
  }
  return true;
}

bool Node::StoreSetting(const std::string& pstrPropName, const Variant& pvarValue) {
  if (pstrPropName == "Caption") {
    Caption(pvarValue.ToText());
  } else if (pstrPropName == "Description") {
    Description = pvarValue.ToText();
  } else if (pstrPropName == "InputPosition") {
    InputPosition(pvarValue.ToInt16());
  } else if (pstrPropName == "OutputPosition") {
    OutputPosition(pvarValue.ToInt16());
  } else if (pstrPropName == "Tag") {
    Tag = pvarValue.ToText();
  } else {
    return false;
  }
  return true;
}

void Node::ShowElements(bool pblnOn) {
  if (auto* image = Image.get()) image->Visible(pblnOn);
  if (auto* label = CaptionLabel.get()) label->Visible(pblnOn);
  if (pblnOn) return;
  if (auto* connector = InConnector.get()) connector->Visible(false);
  if (auto* connector = OutConnector.get()) connector->Visible(false);
}

void Node::DrawImage(bool pblnEnabled) {
  auto* image = Image.get();
  if (!image) return;
  image->Picture(DesignerOf(Workflow).Images->Find(pblnEnabled ? EnabledImageKey : DisabledImageKey));
  image->MoveTo(mLeft, mTop);
}

void Node::DrawCaption() {
  Label* label = CaptionLabel.get();
  if (!label) return;
  label->MoveTo(mLeft + mCaptionOffsetLeft, mTop + mCaptionOffsetTop);
  if (label->Width() < kNarrowLabel) FitLabel(*label, *DesignerOf(Workflow).Host);
}

void Node::DrawConnectors(float psngLeftOutset) {
  const auto* image = Image.get();
  if (!image) return;
  if (auto* connector = InConnector.get()) {
    connector->Picture(DesignerOf(Workflow).Images->Find(InputPicture(mInputPosition)));
    PlaceConnector(*connector, *image, mInputPosition, 0);
  }
  if (auto* connector = OutConnector.get()) {
    connector->Picture(DesignerOf(Workflow).Images->Find(OutputPicture(mOutputPosition)));
    PlaceConnector(*connector, *image, mOutputPosition, psngLeftOutset);
  }
}

void Node::DrawArcs() {
  for (Collection<Arc>::Cursor arcs(InArcs); Arc* arc = arcs.Next();) arc->Draw();
  for (Collection<Arc>::Cursor arcs(OutArcs); Arc* arc = arcs.Next();) arc->Draw();
}

void Node::CopyLook(const Node& pobjFrom) {
  mCaption = pobjFrom.mCaption;
  CaptionHeight = pobjFrom.CaptionHeight;
  CaptionWidth = pobjFrom.CaptionWidth;
  mCaptionOffsetLeft = pobjFrom.mCaptionOffsetLeft;
  mCaptionOffsetTop = pobjFrom.mCaptionOffsetTop;
  DisabledImageKey = pobjFrom.DisabledImageKey;
  EnabledImageKey = pobjFrom.EnabledImageKey;
  mTop = pobjFrom.mTop;
  mLeft = pobjFrom.mLeft;
  Tag = pobjFrom.Tag;
}

}  // namespace vantrel

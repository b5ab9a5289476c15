#include "model/Elbow.h"

#include <algorithm>

#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

constexpr float kHandleSize = 6 * kTwipsPerPixel;  // of a handle that no chart has given yet

}  // namespace

Elbow::Elbow() : Elbow(gobjVantrel->Workflow()) {}

Elbow::Elbow(const Ref<Workflow>& pobjWorkflow) : Handle((pobjWorkflow ? pobjWorkflow->Chart() : *gobjVantrel).NewHandle()) {
  Key = pobjWorkflow ? NextKey(pobjWorkflow->Elbows, "Elbow") : "Elbow1";
  if (Image* handle = Handle.get()) {
    handle->Tag(Key);
    handle->Visible(false);
  }
}

Elbow::~Elbow() {
  InVector(nullptr);
  OutVector(nullptr);
  if (Handle) Handle->Unload();
}

void Elbow::Attach(Ref<Vector>& pobjMember, const Ref<Vector>& pobjVector) {
  if (auto* vector = pobjMember.get()) {
    auto& elbows = vector->mcolElbows;
    const auto found = std::find(elbows.begin(), elbows.end(), this);
    if (found != elbows.end()) elbows.erase(found);
  }
  pobjMember = pobjVector;
  if (auto* vector = pobjMember.get()) vector->mcolElbows.push_back(this);
}

Arc& Elbow::OwnArc() const { return *(mobjInVector ? mobjInVector : mobjOutVector)->Arc(); }

SharedProperties Elbow::GetProperties() { return OwnArc().GetProperties(); }

void Elbow::SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) { OwnArc().SetProperties(pcolProperties); }

void Elbow::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) { OwnArc().SetProperty(pstrPropName, pvarValue); }

float Elbow::HandleWidth() const { return Handle ? Handle->Width() : kHandleSize; }

float Elbow::HandleHeight() const { return Handle ? Handle->Height() : kHandleSize; }

void Elbow::Top(float psngTop) {
  msngTop = psngTop;
  if (Image* handle = Handle.get()) handle->Top(psngTop);
  const float y = psngTop + HandleHeight() / 2;
  if (mobjInVector) mobjInVector->Y2(y);
  if (mobjOutVector) mobjOutVector->Y1(y);
  Dirty(true);
}

void Elbow::Left(float psngLeft) {
  msngLeft = psngLeft;
  if (Image* handle = Handle.get()) handle->Left(psngLeft);
  const float x = psngLeft + HandleWidth() / 2;
  if (mobjInVector) mobjInVector->X2(x);
  if (mobjOutVector) mobjOutVector->X1(x);
  Dirty(true);
}

std::optional<Rect> Elbow::Bounds() const {
  const Image* handle = Handle.get();
  return Rect{msngLeft, msngTop, msngLeft + (handle ? handle->Width() : 0), msngTop + (handle ? handle->Height() : 0)};
}

void Elbow::MoveTo(float psngLeft, float psngTop) {
  if (psngLeft != msngLeft) Left(psngLeft);
  if (psngTop != msngTop) Top(psngTop);
}

void Elbow::CentreHandle(float psngX, float psngY) {
  msngLeft = psngX - HandleWidth() / 2;
  msngTop = psngY - HandleHeight() / 2;
  if (Image* handle = Handle.get()) handle->MoveTo(msngLeft, msngTop);
}

void Elbow::CentreHandleByWidth(float psngX, float psngY) { CentreHandle(psngX, psngY + (HandleHeight() - HandleWidth()) / 2); }

void Elbow::Visible(bool pblnOn) {
  mblnVisible = pblnOn;
  if (Image* handle = Handle.get()) handle->Visible(pblnOn);
}

void Elbow::Dirty(bool pblnDirty) {
  mblnDirty = pblnDirty;
  if (!pblnDirty) return;
  if (mobjInVector && mobjInVector->Arc()) mobjInVector->Arc()->Dirty = true;
  if (mobjOutVector) mobjOutVector->Dirty(true);
}

}  // namespace vantrel

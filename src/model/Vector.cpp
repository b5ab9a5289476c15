#include "model/Vector.h"

#include <limits>

#include "model/Arc.h"
#include "model/Elbow.h"

namespace vantrel {

Vector::~Vector() {
  Arc(nullptr);
  if (LineControl) LineControl->Unload();
}

std::string Vector::Name() const { return mobjArc->Name(); }

void Vector::Arc(const Ref<vantrel::Arc>& pobjArc) {
  if (auto* arc = mobjArc.get()) {
    Vector* const last = arc->mcolSegments.back();
    arc->mcolSegments[mlngPosition] = last;
    last->mlngPosition = mlngPosition;
    arc->mcolSegments.pop_back();
  }
  mobjArc = pobjArc;
  if (auto* arc = mobjArc.get()) {
    mlngPosition = static_cast<std::uint32_t>(arc->mcolSegments.size());
    arc->mcolSegments.push_back(this);
  }
}

void Vector::Start(float psngX1, float psngY1) {
  msngX1 = psngX1;
  msngY1 = psngY1;
  if (Line* line = LineControl.get()) line->Place(msngX1, msngY1, line->X2(), line->Y2());
}

void Vector::End(float psngX2, float psngY2) {
  msngX2 = psngX2;
  msngY2 = psngY2;
  if (Line* line = LineControl.get()) line->Place(line->X1(), line->Y1(), msngX2, msngY2);
}

void Vector::Place(float psngX1, float psngY1, float psngX2, float psngY2) {
  msngX1 = psngX1;
  msngY1 = psngY1;
  msngX2 = psngX2;
  msngY2 = psngY2;
  Draw();
}

void Vector::SetWidth(std::int64_t plngPixels) {
  if (plngPixels > std::numeric_limits<std::int16_t>::max()) throw Error(vntErrOverflow);
  mintLineWidth = static_cast<std::int16_t>(plngPixels);
  if (Line* line = LineControl.get()) line->BorderWidth(mintLineWidth);
}

void Vector::Visible(bool pblnOn) {
  mblnVisible = pblnOn;
  if (Line* line = LineControl.get()) line->Visible(pblnOn);
}

void Vector::Dirty(bool pblnDirty) {
  mblnDirty = pblnDirty;
  if (pblnDirty && mobjArc) mobjArc->Dirty = true;
}

bool Vector::Selected() const { return mobjArc && mobjArc->Selected(); }

void Vector::Selected(bool pblnOn) {
  if (mobjArc) mobjArc->Selected(pblnOn);
}

void Vector::Draw() {
  Line* line = LineControl.get();
  if (!line) return;
  line->Place(msngX1, msngY1, msngX2, msngY2);
  line->BorderColor(ForeColor);
}

SharedProperties Vector::GetProperties() { return mobjArc->GetProperties(); }

void Vector::SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) { mobjArc->SetProperties(pcolProperties); }

void Vector::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) { mobjArc->SetProperty(pstrPropName, pvarValue); }

}  // namespace vantrel

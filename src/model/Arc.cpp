#include "model/Arc.h"

#include <algorithm>

#include "model/DesignerState.h"
#include "model/PropertyBuilder.h"
#include "model/VNTRGlobal.h"
#include "model/Workflow.h"

namespace vantrel {

namespace {

// Those of the objects that are in the collection, in its order.
template <class T>
std::vector<T*> InOrderOf(const Collection<T>& pcolAll, const std::vector<T*>& pcolSome) {
  if (pcolSome.size() == 1) return pcolAll.RankOf(pcolSome.front()->Key, pcolSome.front()) >= 0 ? pcolSome : std::vector<T*>();
  std::vector<std::pair<std::int64_t, T*>> ranked;
  ranked.reserve(pcolSome.size());
  for (T* item : pcolSome) {
    const auto rank = pcolAll.RankOf(item->Key, item);
    if (rank >= 0) ranked.emplace_back(rank, item);
  }
  std::sort(ranked.begin(), ranked.end());
  ranked.erase(std::unique(ranked.begin(), ranked.end()), ranked.end());
  std::vector<T*> ordered;
  ordered.reserve(ranked.size());
  for (const auto& [rank, item] : ranked) ordered.push_back(item);
  return ordered;
}

std::vector<Elbow*> ElbowsOf(const std::vector<Vector*>& pcolSegments) {
  std::vector<Elbow*> elbows;
  for (const Vector* segment : pcolSegments) {
    elbows.insert(elbows.end(), segment->Elbows().begin(), segment->Elbows().end());
  }
  return elbows;
}

}  // namespace

Arc::~Arc() {
  if (CaptionLabel) CaptionLabel->Unload();
  if (WeightLabel) WeightLabel->Unload();
}

std::string Arc::Name() const {
  if (!Place || !Transition) return Key;
  return ArcDirection == vntInArc ? Place->Name() + "->" + Transition->Name() : Transition->Name() + "->" + Place->Name();
}

void Arc::MarkWorkflowDirty() const {
  if (auto* workflow = Workflow.get()) workflow->Dirty(true);
}

std::vector<Vector*> Arc::Segments() const {
  const auto* workflow = Workflow.get();
  return workflow ? InOrderOf(workflow->Vectors, mcolSegments) : std::vector<Vector*>();
}

std::vector<Elbow*> Arc::BendPoints() const {
  const auto* workflow = Workflow.get();
  return workflow ? InOrderOf(workflow->Elbows, ElbowsOf(mcolSegments)) : std::vector<Elbow*>();
}

SharedCollection<Collection<Vector>> Arc::Vectors() const {
  if (!Workflow) return nullptr;
  auto vectors = std::make_shared<Collection<Vector>>();
  for (Vector* segment : Segments()) vectors->Add(ShareOf(*segment), segment->Key);
  return vectors;
}

SharedCollection<Collection<Elbow>> Arc::Elbows() const {
  auto elbows = std::make_shared<Collection<Elbow>>();
  const auto* workflow = Workflow ? Workflow.get() : gobjWorkflow.get();
  if (!workflow) return elbows;
  for (Elbow* elbow : InOrderOf(workflow->Elbows, ElbowsOf(mcolSegments))) {
    elbows->Add(ShareOf(*elbow), elbow->Key);
  }
  return elbows;
}

void Arc::Visible(bool pblnOn) {
  for (Vector* segment : Segments()) segment->Visible(pblnOn);
  mblnVisible = pblnOn;
  if (CaptionLabel) CaptionLabel->Visible(pblnOn);
  if (Workflow && WeightLabel) WeightLabel->Visible(pblnOn && Workflow->ShowWeights);
}

void Arc::ShowFocus(bool pblnOn) {
  for (Vector* segment : Segments()) segment->LineWidth(pblnOn ? 2 : 1);
  const auto elbows = Elbows();
  for (const auto& elbow : *elbows) elbow->Visible(pblnOn);
}

void Arc::Selected(bool pblnOn) {
  ShowFocus(pblnOn);
  mblnSelected = pblnOn;
}

void Arc::Weight(const std::string& pstrWeight) {
  mstrWeight = pstrWeight;
  if (Label* label = WeightLabel.get()) {
    label->Caption(pstrWeight);
    FitLabel(*label, *DesignerOf(Workflow).Host);
    if (pstrWeight.empty()) {
      label->Visible(false);
    } else if (Workflow && Workflow->ShowWeights) {
      label->Visible(true);
    }
  }
  DesignerOf(Workflow).Host->CurrentControl(nullptr);
}

void Arc::Guard(const std::string& pstrGuard) {
  mstrGuard = pstrGuard;
  Dirty = true;
  Draw();
}

void Arc::CaptionOffsetX(float psngOffset) {
  msngCaptionOffsetX = psngOffset;
  Dirty = true;
}

void Arc::CaptionOffsetY(float psngOffset) {
  msngCaptionOffsetY = psngOffset;
  Dirty = true;
}

void Arc::WeightOffsetX(float psngOffset) {
  msngWeightOffsetX = psngOffset;
  Draw();
  Dirty = true;
}

void Arc::WeightOffsetY(float psngOffset) {
  msngWeightOffsetY = psngOffset;
  Draw();
  Dirty = true;
}

void Arc::CaptionHeight(float psngHeight) {
  msngCaptionHeight = psngHeight;
  if (CaptionLabel) CaptionLabel->Height(psngHeight);
}

void Arc::CaptionWidth(float psngWidth) {
  msngCaptionWidth = psngWidth;
  if (CaptionLabel) CaptionLabel->Width(psngWidth);
}

void Arc::WeightHeight(float psngHeight) {
  msngWeightHeight = psngHeight;
  if (WeightLabel) WeightLabel->Height(psngHeight);
}

void Arc::WeightWidth(float psngWidth) {
  msngWeightWidth = psngWidth;
  if (WeightLabel) WeightLabel->Width(psngWidth);
}

SharedProperties Arc::GetProperties() {
  PropertyBuilder records;
  records.Add("Name", vntPropertyText, "User provided name (should be unique).", Name()).ReadOnly = true;
  records.Add("Description", vntPropertyMultiLine, "Object description.", Description);
  records.Add("Weight", vntPropertyText, "Value assigned as the weight of a token using this path.", mstrWeight);
  records.Add("Guard", vntPropertyText, "Expression that a token mmust satisfy to use this path.", mstrGuard);
  records.Add("Tag", vntPropertyText, "", Tag);
  return records.Done();
}

void Arc::SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) {
  const auto keeper = KeepAlive();
  ModelObject::SetProperties(pcolProperties);
  Dirty = false;
}

void Arc::Store(const std::string& pstrPropName, const Variant& pvarValue) {
  if (pstrPropName == "Description") {
    Description = pvarValue.ToText();
  } else if (pstrPropName == "Weight") {
    Weight(pvarValue.ToText());
  } else if (pstrPropName == "Guard") {
    Guard(pvarValue.ToText());
  } else if (pstrPropName == "Tag") {
    Tag = pvarValue.ToText();
  }
}

void Arc::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) {
  const auto keeper = KeepAlive();
  if (pstrPropName == "Name") return;
  if (!Guarded([&] { Store(pstrPropName, pvarValue); })) return;
  Dirty = true;
  MarkWorkflowDirty();
}

}  // namespace vantrel

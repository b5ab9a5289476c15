// How an arc's chain of segments changes: splitting, joining, copying.
#include <cmath>
#include <unordered_map>

#include "model/Arc.h"
#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

void LinkBehind(Vector& pobjOld, Vector& pobjNew) {
  pobjNew.InVector = &pobjOld;
  if (pobjOld.OutVector) pobjOld.OutVector->InVector = &pobjNew;
  pobjNew.OutVector = pobjOld.OutVector;
  pobjOld.OutVector = &pobjNew;
}

void HalveGeometry(Vector& pobjOld, Vector& pobjNew) {
  const float x = (pobjOld.X1() + pobjOld.X2()) / 2;
  const float y = (pobjOld.Y1() + pobjOld.Y2()) / 2;
  pobjNew.End(pobjOld.X2(), pobjOld.Y2());
  pobjOld.End(x, y);
  pobjNew.Start(x, y);
  pobjNew.LineWidth(pobjOld.LineWidth());
}

}  // namespace

std::shared_ptr<Vector> Arc::InsertVector(const std::shared_ptr<Vector>& pobjVector) {
  vantrel::Workflow& workflow = *Workflow;
  auto vector = std::make_shared<Vector>();
  vector->LineControl = workflow.Chart().NewLine();
  const auto bendPoints = BendPoints();
  vector->Arc(shared_from_this());
  LinkBehind(*pobjVector, *vector);
  for (Elbow* bendPoint : bendPoints) {
    if (bendPoint->InVector() == pobjVector) bendPoint->InVector(vector);
  }
  const auto elbow = std::make_shared<Elbow>(&workflow);
  elbow->InVector(pobjVector);
  elbow->OutVector(vector);
  HalveGeometry(*pobjVector, *vector);

  vector->Key = NextKey(workflow.Vectors, "Vector");
  if (auto* line = vector->LineControl.get()) line->Tag(vector->Key);
  if (auto* handle = elbow->Handle.get()) handle->BringToFront();
  elbow->CentreHandle(vector->X1(), vector->Y1());
  workflow.Vectors.Add(vector, vector->Key);
  workflow.Elbows.Add(elbow, elbow->Key);

  Dirty = true;
  vector->Visible(true);
  Draw();
  workflow.Dirty(true);
  return vector;
}

void Arc::RemoveVector(const std::shared_ptr<Vector>& pobjVector) {
  // The caller's may be the workflow's own share, which goes. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const auto vector = pobjVector;
  vantrel::Workflow& workflow = *Workflow;
  if (workflow.Vectors.Find(vector->Key) != vector) throw Error(vntErrInvalidCall);
  const auto bendPoints = BendPoints();
  const auto before = vector->InVector, behind = vector->OutVector;
  if (before) before->OutVector = behind;
  if (behind) behind->InVector = before;
  for (Elbow* elbow : bendPoints) {
    const bool joinsNothing = elbow->InVector() == vector && !before;
    if (bendPoints.size() == 1 || elbow->OutVector() == vector || joinsNothing) {
      workflow.Elbows.Remove(elbow->Key);
    } else if (elbow->InVector() == vector) {
      elbow->InVector(before.Lock());
    }
  }
  workflow.Vectors.Remove(vector->Key);
  if (vector->LineControl) vector->LineControl->Unload();
  vector->Arc(nullptr);
  workflow.Dirty(true);
  Dirty = true;
  Draw();
}

void Arc::CopySettings(const Arc& pobjFrom) {
  msngCaptionHeight = pobjFrom.msngCaptionHeight;
  msngCaptionWidth = pobjFrom.msngCaptionWidth;
  msngCaptionOffsetX = pobjFrom.msngCaptionOffsetX;
  msngCaptionOffsetY = pobjFrom.msngCaptionOffsetY;
  mstrGuard = pobjFrom.mstrGuard;
  mstrWeight = pobjFrom.mstrWeight;
  StdPath = pobjFrom.StdPath;
  msngWeightHeight = pobjFrom.msngWeightHeight;
  msngWeightWidth = pobjFrom.msngWeightWidth;
  msngWeightOffsetX = pobjFrom.msngWeightOffsetX;
  msngWeightOffsetY = pobjFrom.msngWeightOffsetY;
}

std::shared_ptr<Arc> Arc::Clone(const std::shared_ptr<vantrel::Workflow>& pobjWorkflow, const std::shared_ptr<vantrel::Place>& pobjPlace,
                                const std::shared_ptr<vantrel::Transition>& pobjTransition) const {
  const float dx = std::nearbyint(pobjPlace->Left() - Place->Left());
  const float dy = std::nearbyint(pobjPlace->Top() - Place->Top());
  auto arc = std::make_shared<Arc>();
  arc->Workflow = pobjWorkflow;
  arc->Place = pobjPlace;
  arc->Transition = pobjTransition;
  arc->ArcDirection = ArcDirection;
  arc->Key = NextKey(pobjWorkflow->Arcs, "Arc");
  pobjWorkflow->Arcs.Add(arc, arc->Key);
  arc->CopySettings(*this);

  std::unordered_map<const Vector*, std::shared_ptr<Vector>> copies;
  const auto segments = Segments();
  for (const Vector* segment : segments) {
    auto vector = std::make_shared<Vector>();
    vector->Key = NextKey(pobjWorkflow->Vectors, "Vector");
    vector->Arc(arc);
    vector->Start(segment->X1() + dx, segment->Y1() + dy);
    vector->End(segment->X2() + dx, segment->Y2() + dy);
    pobjWorkflow->Vectors.Add(vector, vector->Key);
    copies.emplace(segment, vector);
  }
  for (const Vector* segment : segments) {
    const auto behind = copies.find(segment->OutVector.get());
    if (behind == copies.end()) continue;
    copies[segment]->OutVector = behind->second;
    behind->second->InVector = copies[segment];
  }
  for (const Elbow* bendPoint : BendPoints()) {
    const auto in = copies.find(bendPoint->InVector().get()), out = copies.find(bendPoint->OutVector().get());
    if (in == copies.end() || out == copies.end()) continue;
    const auto elbow = std::make_shared<Elbow>(pobjWorkflow);
    elbow->InVector(in->second);
    elbow->OutVector(out->second);
    elbow->CentreHandle(in->second->X2(), in->second->Y2());
    pobjWorkflow->Elbows.Add(elbow, elbow->Key);
  }
  arc->Dirty = true;
  return arc;
}

}  // namespace vantrel

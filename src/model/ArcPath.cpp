// How an arc's chain of segments changes: splitting, joining, replacing, copying.
#include <cmath>
#include <unordered_map>

#include "model/Arc.h"
#include "model/ArcChain.h"
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

// The bend point at which one segment ends and the other starts, or null.
Elbow* Joint(const Workflow& pobjWorkflow, const Vector& pobjBefore, const Vector& pobjBehind) {
  for (Elbow* elbow : pobjBefore.Elbows()) {
    if (elbow->OutVector() == &pobjBehind && pobjWorkflow.Has(*elbow)) return elbow;
  }
  return nullptr;
}

void Join(Workflow& pobjWorkflow, Vector& pobjBefore, Vector& pobjBehind) {
  pobjBefore.OutVector = &pobjBehind;
  pobjBehind.InVector = &pobjBefore;
  if (Joint(pobjWorkflow, pobjBefore, pobjBehind)) return;
  const auto elbow = std::make_shared<Elbow>(&pobjWorkflow);
  elbow->InVector(&pobjBefore);
  elbow->OutVector(&pobjBehind);
  elbow->CentreHandle(pobjBefore.X2(), pobjBefore.Y2());
  pobjWorkflow.Elbows.Add(elbow, elbow->Key);
}

}  // namespace

std::shared_ptr<Vector> Arc::AddSegment() {
  vantrel::Workflow& workflow = *Workflow;
  auto vector = std::make_shared<Vector>();
  vector->Key = NextKey(workflow.Vectors, "Vector");
  vector->Arc(this);
  workflow.Vectors.Add(vector, vector->Key);
  return vector;
}

std::vector<Vector*> Arc::LinkSegments() {
  auto chain = ChainOf(*this);
  for (std::size_t i = 1; i < chain.size(); ++i) Join(*Workflow, *chain[i - 1], *chain[i]);
  if (!chain.empty()) chain.front()->InVector = chain.back()->OutVector = nullptr;
  return chain;
}

std::vector<Point> Arc::Path() const {
  const auto chain = ChainOf(*this);
  if (chain.empty()) return mcolLastPath;
  std::vector<Point> points;
  for (const Vector* segment : chain) {
    if (points.empty()) points.push_back({segment->X1(), segment->Y1()});
    points.push_back({segment->X2(), segment->Y2()});
  }
  return points;
}

// A straight path adds nothing to the arc's ends.
void Arc::KeepPath() {
  if (mcolSegments.size() > 1) mcolLastPath = Path();
}

void Arc::Path(const std::vector<Point>& pcolPoints) {
  if (pcolPoints.size() < 2) throw Error(vntErrInvalidCall);
  auto chain = LinkSegments();
  for (; chain.size() >= pcolPoints.size(); chain.pop_back()) RemoveSegment(*chain.back());
  while (chain.size() + 1 < pcolPoints.size()) {
    Vector* const segment = AddSegment().get();
    if (!chain.empty()) Join(*Workflow, *chain.back(), *segment);
    chain.push_back(segment);
  }
  for (std::size_t i = 0; i < chain.size(); ++i) {
    chain[i]->Start(pcolPoints[i].X, pcolPoints[i].Y);
    chain[i]->End(pcolPoints[i + 1].X, pcolPoints[i + 1].Y);
    if (i > 0) Joint(*Workflow, *chain[i - 1], *chain[i])->CentreHandle(pcolPoints[i].X, pcolPoints[i].Y);
  }
  GiveElements(chain);
  Dirty = true;
  Draw();
}

// Lines for the segments that were added to an arc on a chart, and the look of the others for their bend points.
void Arc::GiveElements(const std::vector<Vector*>& pcolChain) const {
  if (!pcolChain.front()->LineControl) return;
  for (Vector* segment : pcolChain) {
    for (Elbow* elbow : segment->Elbows()) elbow->Visible(mblnSelected);
    if (segment->LineControl) continue;
    segment->LineControl = Workflow->Chart().NewLine();
    if (segment->LineControl) segment->LineControl->Tag(segment->Key);
    segment->LineWidth(pcolChain.front()->LineWidth());
    segment->Visible(mblnVisible);
    segment->Draw();
  }
}

// The last one of the chain, with the bend point before it.
void Arc::RemoveSegment(Vector& pobjVector) {
  vantrel::Workflow& workflow = *Workflow;
  if (pobjVector.InVector) pobjVector.InVector->OutVector = nullptr;
  while (!pobjVector.Elbows().empty()) {
    const auto elbow = ShareOf(*pobjVector.Elbows().front());
    workflow.Elbows.RemoveIfThere(elbow->Key);
    elbow->InVector(nullptr);
    elbow->OutVector(nullptr);
    if (elbow->Handle) elbow->Handle->Unload();
  }
  const auto vector = workflow.Vectors.Take(pobjVector.Key);
  vector->Arc(nullptr);
  if (vector->LineControl) vector->LineControl->Unload();
}

void Arc::RequireSegment(const Vector* pobjVector) const {
  if (!pobjVector) throw Error(vntErrObjectNotSet);
  if (pobjVector->Arc() != this) throw Error(vntErrInvalidCall);
}

std::shared_ptr<Vector> Arc::InsertVector(const std::shared_ptr<Vector>& pobjVector) {
  RequireSegment(pobjVector.get());
  vantrel::Workflow& workflow = *Workflow;
  const auto bendPoints = BendPoints();
  auto vector = AddSegment();
  vector->LineControl = workflow.Chart().NewLine();
  if (auto* line = vector->LineControl.get()) line->Tag(vector->Key);
  LinkBehind(*pobjVector, *vector);
  for (Elbow* bendPoint : bendPoints) {
    if (bendPoint->InVector() == pobjVector) bendPoint->InVector(vector);
  }
  const auto elbow = std::make_shared<Elbow>(&workflow);
  elbow->InVector(pobjVector);
  elbow->OutVector(vector);
  HalveGeometry(*pobjVector, *vector);
  if (auto* handle = elbow->Handle.get()) handle->BringToFront();
  elbow->CentreHandleByWidth(vector->X1(), vector->Y1());
  workflow.Elbows.Add(elbow, elbow->Key);
  Dirty = true;
  vector->Visible(true);
  Draw();
  workflow.Dirty(true);
  return vector;
}

void Arc::RemoveVector(const std::shared_ptr<Vector>& pobjVector) {
  // The caller's may be the workflow's own share, which this releases. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const auto vector = pobjVector;
  const auto keeper = KeepAlive();
  RequireSegment(vector.get());
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
  if (!pobjWorkflow || !pobjPlace || !pobjTransition) throw Error(vntErrObjectNotSet);
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

  if (Segments().empty()) {
    auto points = mcolLastPath;
    for (Point& point : points) point = {point.X + dx, point.Y + dy};
    if (!points.empty()) arc->Path(points);
  }
  std::unordered_map<const Vector*, Vector*> copies;
  for (const Vector* segment : Segments()) {
    Vector* const copy = arc->AddSegment().get();
    copy->Start(segment->X1() + dx, segment->Y1() + dy);
    copy->End(segment->X2() + dx, segment->Y2() + dy);
    copies.emplace(segment, copy);
  }
  const auto chain = ChainOf(*this);
  for (std::size_t i = 1; i < chain.size(); ++i) Join(*pobjWorkflow, *copies[chain[i - 1]], *copies[chain[i]]);
  arc->Dirty = true;
  return arc;
}

}  // namespace vantrel

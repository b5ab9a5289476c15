// How a workflow removes an object with everything that depends on it.
#include "model/Workflow.h"

namespace vantrel {

namespace {

template <class E>
void Unload(Ref<E>& pobjElement) {
  if (pobjElement) pobjElement->Unload();
  pobjElement = nullptr;
}

// A connector shows only while an arc sits on it.
void Unlink(const Arc& pobjArc, Collection<Arc>& pcolArcs, const Ref<Image>& pobjConnector) {
  if (pcolArcs.Find(pobjArc.Key).get() != &pobjArc) return;
  pcolArcs.Remove(pobjArc.Key);
  if (pcolArcs.IsEmpty() && pobjConnector) pobjConnector->Visible(false);
}

void UnlinkFromEnds(const Arc& pobjArc) {
  const bool inward = pobjArc.ArcDirection == vntInArc;
  if (auto* source = inward ? static_cast<Node*>(pobjArc.Place.get()) : pobjArc.Transition.get()) {
    Unlink(pobjArc, source->OutArcs, source->OutConnector);
  }
  if (auto* target = inward ? static_cast<Node*>(pobjArc.Transition.get()) : pobjArc.Place.get()) {
    Unlink(pobjArc, target->InArcs, target->InConnector);
  }
}

/// Records what it takes out.
class Removal {
 public:
  explicit Removal(Workflow& pobjWorkflow) : mobjWorkflow(pobjWorkflow) {}

  void Remove(ChartObject& pobjObject);
  std::vector<std::shared_ptr<ChartObject>> Gone;

 private:
  template <class T>
  void TakeOut(Collection<T>& pcolObjects, const T& pobjObject) {
    Gone.push_back(pcolObjects.Take(pobjObject.Key));
  }
  void RemoveArc(Arc& pobjArc);
  void RemoveBendPoint(Elbow& pobjElbow);
  void RemoveArcsAndElements(Node& pobjNode);
  void RemovePlace(Place& pobjPlace);
  void RemoveTransition(Transition& pobjTransition);
  void RemoveNotation(Notation& pobjNotation);

  Workflow& mobjWorkflow;
};

void Removal::RemoveArc(Arc& pobjArc) {
  pobjArc.KeepPath();
  UnlinkFromEnds(pobjArc);
  for (Elbow* bendPoint : pobjArc.BendPoints()) {
    Unload(bendPoint->Handle);
    TakeOut(mobjWorkflow.Elbows, *bendPoint);
  }
  for (Vector* segment : pobjArc.Segments()) {
    Unload(segment->LineControl);
    TakeOut(mobjWorkflow.Vectors, *segment);
  }
  Unload(pobjArc.CaptionLabel);
  Unload(pobjArc.WeightLabel);
  TakeOut(mobjWorkflow.Arcs, pobjArc);
}

void Removal::RemoveBendPoint(Elbow& pobjElbow) {
  Unload(pobjElbow.Handle);
  const auto segment = pobjElbow.OutVector().Lock();
  if (!segment || !mobjWorkflow.Has(*segment)) return TakeOut(mobjWorkflow.Elbows, pobjElbow);
  Gone = {ShareOf(pobjElbow), segment};
  if (pobjElbow.InVector()) pobjElbow.InVector()->End(segment->X2(), segment->Y2());
  segment->Arc()->RemoveVector(segment);
}

void Removal::RemoveArcsAndElements(Node& pobjNode) {
  for (auto* arcs : {&pobjNode.InArcs, &pobjNode.OutArcs}) {
    for (const auto& arc : *arcs) {
      if (mobjWorkflow.Has(*arc)) RemoveArc(*arc);
    }
  }
  Unload(pobjNode.Image);
  Unload(pobjNode.InConnector);
  Unload(pobjNode.OutConnector);
  Unload(pobjNode.CaptionLabel);
}

void Removal::RemovePlace(Place& pobjPlace) {
  RemoveArcsAndElements(pobjPlace);
  Unload(pobjPlace.CountLabel);
  if (mobjWorkflow.StartPlace == &pobjPlace) mobjWorkflow.StartPlace = nullptr;
  if (mobjWorkflow.EndPlace() == &pobjPlace) mobjWorkflow.EndPlace(nullptr);
  TakeOut(mobjWorkflow.Places, pobjPlace);
}

void Removal::RemoveTransition(Transition& pobjTransition) {
  RemoveArcsAndElements(pobjTransition);
  pobjTransition.CancelRuns();
  Unload(pobjTransition.RolesImage);
  Unload(pobjTransition.RolesList);
  mobjWorkflow.FiringStack.RemoveIfThere(pobjTransition.Key);
  TakeOut(mobjWorkflow.Transitions, pobjTransition);
}

void Removal::RemoveNotation(Notation& pobjNotation) {
  Unload(pobjNotation.TextControl);
  TakeOut(mobjWorkflow.Notations, pobjNotation);
}

void Removal::Remove(ChartObject& pobjObject) {
  if (!mobjWorkflow.Has(pobjObject)) throw Error(vntErrInvalidCall);
  switch (pobjObject.Kind()) {
    case ChartKind::Place:
      return RemovePlace(static_cast<Place&>(pobjObject));
    case ChartKind::Transition:
      return RemoveTransition(static_cast<Transition&>(pobjObject));
    case ChartKind::Arc:
      return RemoveArc(static_cast<Arc&>(pobjObject));
    case ChartKind::Vector:
      return Remove(*static_cast<Vector&>(pobjObject).Arc());
    case ChartKind::Elbow:
      return RemoveBendPoint(static_cast<Elbow&>(pobjObject));
    case ChartKind::Notation:
      return RemoveNotation(static_cast<Notation&>(pobjObject));
  }
}

template <class T>
bool Holds(const Collection<T>& pcolObjects, const ChartObject& pobjObject) {
  return pcolObjects.Find(pobjObject.Key).get() == &pobjObject;
}

}  // namespace

bool Workflow::Has(const ChartObject& pobjObject) const {
  switch (pobjObject.Kind()) {
    case ChartKind::Place:
      return Holds(Places, pobjObject);
    case ChartKind::Transition:
      return Holds(Transitions, pobjObject);
    case ChartKind::Arc:
      return Holds(Arcs, pobjObject);
    case ChartKind::Vector:
      return Holds(Vectors, pobjObject);
    case ChartKind::Elbow:
      return Holds(Elbows, pobjObject);
    case ChartKind::Notation:
      return Holds(Notations, pobjObject);
  }
  return false;
}

std::vector<std::shared_ptr<ChartObject>> Workflow::Remove(const std::shared_ptr<ChartObject>& pobjObject) {
  // The caller's may be the collection's own share, which this releases. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const auto object = pobjObject;
  if (!object) throw Error(vntErrObjectNotSet);
  Removal removal(*this);
  removal.Remove(*object);
  return std::move(removal.Gone);
}

}  // namespace vantrel

#include "designer/ObjectRemoval.h"

#include "designer/ChartObjects.h"

namespace vantrel {

namespace {

template <class E>
void Unload(Ref<E>& pobjElement) {
  if (pobjElement) pobjElement->Unload();
  pobjElement = nullptr;
}

// The connector shows only while an arc sits on it.
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

}  // namespace

void ObjectRemoval::RemoveArc(const std::shared_ptr<Arc>& pobjArc) {
  UnlinkFromEnds(*pobjArc);
  const auto bendPoints = pobjArc->BendPoints();
  for (Elbow* bendPoint : bendPoints) {
    mcolRemoved.push_back(bendPoint->shared_from_this());
    Unload(bendPoint->Handle);
    mobjWorkflow.Elbows.Remove(bendPoint->Key);
  }
  const auto segments = pobjArc->Segments();
  for (Vector* segment : segments) {
    mcolRemoved.push_back(segment->shared_from_this());
    Unload(segment->LineControl);
    mobjWorkflow.Vectors.Remove(segment->Key);
  }
  Unload(pobjArc->CaptionLabel);
  Unload(pobjArc->WeightLabel);
  mcolRemoved.push_back(pobjArc);
  mobjWorkflow.Arcs.Remove(pobjArc->Key);
}

void ObjectRemoval::RemoveArcsOf(const Node& pobjNode) {
  for (const auto* arcs : {&pobjNode.InArcs, &pobjNode.OutArcs}) {
    for (const auto& arc : *arcs) {
      if (IsPartOf(*arc, mobjWorkflow)) RemoveArc(arc);
    }
  }
}

void ObjectRemoval::UnloadNode(Node& pobjNode) {
  Unload(pobjNode.Image);
  Unload(pobjNode.InConnector);
  Unload(pobjNode.OutConnector);
  Unload(pobjNode.CaptionLabel);
}

void ObjectRemoval::RemovePlace(const std::shared_ptr<Place>& pobjPlace) {
  RemoveArcsOf(*pobjPlace);
  UnloadNode(*pobjPlace);
  Unload(pobjPlace->CountLabel);
  if (mobjWorkflow.StartPlace == pobjPlace) mobjWorkflow.StartPlace = nullptr;
  if (mobjWorkflow.EndPlace() == pobjPlace) mobjWorkflow.EndPlace(nullptr);
  mcolRemoved.push_back(pobjPlace);
  mobjWorkflow.Places.Remove(pobjPlace->Key);
}

void ObjectRemoval::RemoveTransition(const std::shared_ptr<Transition>& pobjTransition) {
  RemoveArcsOf(*pobjTransition);
  UnloadNode(*pobjTransition);
  Unload(pobjTransition->RolesImage);
  Unload(pobjTransition->RolesList);
  mobjWorkflow.FiringStack.RemoveIfThere(pobjTransition->Key);
  mcolRemoved.push_back(pobjTransition);
  mobjWorkflow.Transitions.Remove(pobjTransition->Key);
}

void ObjectRemoval::RemoveNotation(const std::shared_ptr<Notation>& pobjNotation) {
  Unload(pobjNotation->TextControl);
  mcolRemoved.push_back(pobjNotation);
  mobjWorkflow.Notations.Remove(pobjNotation->Key);
}

void ObjectRemoval::Remove(const std::shared_ptr<ModelObject>& pobjObject) {
  if (!pobjObject) throw Error(vntErrObjectNotSet);
  if (std::dynamic_pointer_cast<Elbow>(pobjObject)) return;
  if (!KeyOf(*pobjObject).empty() && !IsPartOf(*pobjObject, mobjWorkflow)) throw Error(vntErrInvalidCall);
  if (const auto arc = std::dynamic_pointer_cast<Arc>(pobjObject)) return RemoveArc(arc);
  if (const auto vector = std::dynamic_pointer_cast<Vector>(pobjObject)) return RemoveArc(vector->Arc()->shared_from_this());
  if (const auto place = std::dynamic_pointer_cast<Place>(pobjObject)) return RemovePlace(place);
  if (const auto transition = std::dynamic_pointer_cast<Transition>(pobjObject)) return RemoveTransition(transition);
  if (const auto note = std::dynamic_pointer_cast<Notation>(pobjObject)) return RemoveNotation(note);
}

}  // namespace vantrel

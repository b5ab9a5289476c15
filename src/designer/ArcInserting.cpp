#include "designer/ArcInserting.h"

#include "designer/ChartObjects.h"
#include "designer/ControlParts.h"
#include "designer/ElementBinding.h"
#include "designer/HostEvents.h"

namespace vantrel {

namespace {

constexpr const char* kLikeObjects =
    "Arcs are only permitted between Transitions and Places.  They are not permitted between like objects.";
constexpr const char* kSecondArc = "Only one arc is permitted between a transition and a place.";
constexpr const char* kNoSource = "First select an object that the arc will be drawn from.";
constexpr const char* kFromEndPlace = "Arcs extending from an End Places is not allowed.";

void RefuseLikeObjects(Vantrel& pobjControl, const ModelObject& pobjFrom) {
  SayLater(pobjControl, kLikeObjects);
  const auto* node = dynamic_cast<const Node*>(&pobjFrom);
  if (node && node->OutArcs.IsEmpty() && node->OutConnector) node->OutConnector->Visible(false);
}

// A place lists every arc that touches it, so the workflow need not be walked.
bool AreJoined(const Place& pobjPlace, const Transition& pobjTransition, const Workflow& pobjWorkflow) {
  for (const auto* arcs : {&pobjPlace.InArcs, &pobjPlace.OutArcs}) {
    for (Collection<Arc>::Cursor cursor(*arcs); const Arc* arc = cursor.Next();) {
      if (arc->Transition == &pobjTransition && IsPartOf(*arc, pobjWorkflow)) return true;
    }
  }
  return false;
}

}  // namespace

std::shared_ptr<Arc> InsertArc(Vantrel& pobjControl, const std::shared_ptr<ModelObject>& pobjFrom,
                               const std::shared_ptr<ModelObject>& pobjTo) {
  const auto workflow = pobjControl.Workflow();
  if (!workflow || !pobjFrom || !pobjTo) throw Error(vntErrObjectNotSet);
  const auto source = std::dynamic_pointer_cast<Transition>(pobjFrom);
  const auto transition = source ? source : std::dynamic_pointer_cast<Transition>(pobjTo);
  const auto place = std::dynamic_pointer_cast<Place>(source ? pobjTo : pobjFrom);
  if (!place || !transition) {
    RefuseLikeObjects(pobjControl, *pobjFrom);
    return nullptr;
  }
  if (!IsPartOf(*place, *workflow) || !IsPartOf(*transition, *workflow)) throw Error(vntErrInvalidCall);
  if (AreJoined(*place, *transition, *workflow)) {
    SayLater(pobjControl, kSecondArc);
    return nullptr;
  }
  auto arc = workflow->CreateArc(place, transition, source ? vntOutArc : vntInArc);
  Bind(pobjControl, *arc);
  arc->Visible(true);
  arc->Draw();
  workflow->Dirty(true);
  return arc;
}

void StartArcInsert(Vantrel& pobjControl) {
  const auto* element = pobjControl.CurrentControl().get();
  if (!element) {
    SayLater(pobjControl, kNoSource);
    return;
  }
  const auto object = pobjControl.GetVNTRObject(element->Tag());
  const auto& end = pobjControl.Workflow()->EndPlace();
  if (object && end && end.get() == object.get()) {
    SayLater(pobjControl, kFromEndPlace);
    return;
  }
  PartsOf(pobjControl).InsertingArc = true;
  pobjControl.Tools().Pointer(vntPointerCross);
}

void EndArcInsert(Vantrel& pobjControl) {
  PartsOf(pobjControl).InsertingArc = false;
  pobjControl.ChartArea.ctlLine.Template().Visible(false);
  pobjControl.Tools().Pointer(vntPointerDefault);
}

}  // namespace vantrel

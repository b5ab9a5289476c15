#include "designer/ArcInserting.h"

#include "designer/ChartObjects.h"
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

std::shared_ptr<Arc> ArcInserting::Insert(const std::shared_ptr<ModelObject>& pobjFrom, const std::shared_ptr<ModelObject>& pobjTo) {
  const auto workflow = mobjControl.Workflow();
  if (!workflow || !pobjFrom || !pobjTo) throw Error(vntErrObjectNotSet);
  const auto source = std::dynamic_pointer_cast<Transition>(pobjFrom);
  const auto transition = source ? source : std::dynamic_pointer_cast<Transition>(pobjTo);
  const auto place = std::dynamic_pointer_cast<Place>(source ? pobjTo : pobjFrom);
  if (!place || !transition) {
    RefuseLikeObjects(mobjControl, *pobjFrom);
    return nullptr;
  }
  if (!IsPartOf(*place, *workflow) || !IsPartOf(*transition, *workflow)) throw Error(vntErrInvalidCall);
  if (AreJoined(*place, *transition, *workflow)) {
    SayLater(mobjControl, kSecondArc);
    return nullptr;
  }
  auto arc = workflow->CreateArc(place, transition, source ? vntOutArc : vntInArc);
  ElementBinding(mobjControl).Bind(*arc);
  arc->Visible(true);
  arc->Draw();
  workflow->Dirty(true);
  return arc;
}

void ArcInserting::Start() {
  const auto* element = mobjControl.CurrentControl().get();
  if (!element) {
    SayLater(mobjControl, kNoSource);
    return;
  }
  const auto object = mobjControl.GetVNTRObject(element->Tag());
  const auto& end = mobjControl.Workflow()->EndPlace();
  if (object && end && end.get() == object.get()) {
    SayLater(mobjControl, kFromEndPlace);
    return;
  }
  mobjControl.mblnInsertingArc = true;
  mobjControl.Tools().Pointer(vntPointerCross);
}

void ArcInserting::End() {
  mobjControl.mblnInsertingArc = false;
  mobjControl.ChartArea.ctlLine.Template().Visible(false);
  mobjControl.Tools().Pointer(vntPointerDefault);
}

}  // namespace vantrel

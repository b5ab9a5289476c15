#include "designer/Inserting.h"

#include "designer/ChartObjects.h"
#include "designer/CurrentPosition.h"
#include "designer/ElementBinding.h"
#include "designer/Selecting.h"

namespace vantrel {

namespace {

constexpr std::int32_t kNoteWidth = 1200, kNoteHeight = 600;
constexpr std::int16_t kFlat = 0, kFixedSingle = 1;

// The bend point before the segment; for the first segment the one after it.
std::shared_ptr<Elbow> BendPointGoingWith(const Vector& pobjSegment) {
  for (Elbow* bendPoint : pobjSegment.Elbows()) {
    const auto& joined = pobjSegment.InVector ? bendPoint->OutVector() : bendPoint->InVector();
    if (joined == &pobjSegment) return ShareOf(*bendPoint);
  }
  return nullptr;
}

Workflow& ChartOf(const Vantrel& pobjControl) { return *Ref<Workflow>(pobjControl.Workflow()); }

template <class N>
void Show(Vantrel& pobjControl, N& pobjNode, const std::string& pstrCaption) {
  pobjNode.Caption(pobjNode.Name());
  pobjNode.MoveTo(pobjControl.CurrentX, pobjControl.CurrentY);
  Bind(pobjControl, pobjNode);
  pobjNode.Caption(pstrCaption.empty() ? pobjNode.Name() : pstrCaption);
  pobjNode.Visible(true);
  pobjNode.Draw();
}

std::shared_ptr<Vector> CurrentSegment(const Vantrel& pobjControl) {
  const Element* element = pobjControl.CurrentControl().get();
  if (!element || element->Family() != ctlLineFamily) return nullptr;
  return std::dynamic_pointer_cast<Vector>(pobjControl.GetVNTRObject(element->Tag()));
}

}  // namespace

std::shared_ptr<Place> InsertPlace(Vantrel& pobjControl, const std::string& pstrCaption) {
  RequirePosition(pobjControl);
  auto place = ChartOf(pobjControl).NewPlace();
  Show(pobjControl, *place, pstrCaption);
  place->Dirty(true);
  ChartOf(pobjControl).Dirty(true);
  return place;
}

std::shared_ptr<Transition> InsertTransition(Vantrel& pobjControl, const std::string& pstrCaption) {
  RequirePosition(pobjControl);
  auto transition = ChartOf(pobjControl).NewTransition();
  Show(pobjControl, *transition, pstrCaption);
  ChartOf(pobjControl).Dirty(true);
  return transition;
}

std::shared_ptr<Notation> AddNotation(Vantrel& pobjControl) {
  RequirePosition(pobjControl);
  Workflow& workflow = ChartOf(pobjControl);
  auto note = workflow.NewNotation();
  MoveTo(*note, pobjControl.CurrentX, pobjControl.CurrentY);
  note->Appearance = kFlat;
  note->BorderStyle = kFixedSingle;
  note->Width(kNoteWidth);
  note->Height(kNoteHeight);
  note->Dirty = true;
  Bind(pobjControl, *note);
  workflow.Dirty(true);
  return note;
}

void InsertElbow(Vantrel& pobjControl) {
  const auto vector = CurrentSegment(pobjControl);
  if (!vector) return;
  vector->Arc()->InsertVector(vector);
  pobjControl.Dirty(true);
}

void RemoveElbow(Vantrel& pobjControl) {
  const auto vector = CurrentSegment(pobjControl);
  if (!vector) return;
  const auto arc = vector->Arc().Lock();
  if (arc->Segments().size() < 2) return;
  pobjControl.CurrentControl(nullptr);
  std::vector<std::shared_ptr<ChartObject>> leaving{vector};
  if (const auto bendPoint = BendPointGoingWith(*vector)) {
    if (bendPoint->Handle) bendPoint->Handle->Unload();
    leaving.push_back(bendPoint);
  }
  ForgetObjects(pobjControl, leaving);
  arc->Selected(false);
  arc->RemoveVector(vector);
  arc->RemoveFocus();
  if (pobjControl.Comfort.ChosenIsSeen) pobjControl.Selection(nullptr);
  pobjControl.Dirty(true);
}

}  // namespace vantrel

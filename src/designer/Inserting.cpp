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

}  // namespace

Workflow& Inserting::Chart() const { return *Ref<Workflow>(mobjControl.Workflow()); }

template <class N>
void Inserting::Show(N& pobjNode, const std::string& pstrCaption) {
  pobjNode.Caption(pobjNode.Name());
  pobjNode.MoveTo(mobjControl.CurrentX, mobjControl.CurrentY);
  ElementBinding(mobjControl).Bind(pobjNode);
  pobjNode.Caption(pstrCaption.empty() ? pobjNode.Name() : pstrCaption);
  pobjNode.Visible(true);
  pobjNode.Draw();
}

std::shared_ptr<Place> Inserting::InsertPlace(const std::string& pstrCaption) {
  RequirePosition(mobjControl);
  auto place = Chart().NewPlace();
  Show(*place, pstrCaption);
  place->Dirty(true);
  Chart().Dirty(true);
  return place;
}

std::shared_ptr<Transition> Inserting::InsertTransition(const std::string& pstrCaption) {
  RequirePosition(mobjControl);
  auto transition = Chart().NewTransition();
  Show(*transition, pstrCaption);
  Chart().Dirty(true);
  return transition;
}

std::shared_ptr<Notation> Inserting::AddNotation() {
  RequirePosition(mobjControl);
  Workflow& workflow = Chart();
  auto note = workflow.NewNotation();
  MoveTo(*note, mobjControl.CurrentX, mobjControl.CurrentY);
  note->Appearance = kFlat;
  note->BorderStyle = kFixedSingle;
  note->Width(kNoteWidth);
  note->Height(kNoteHeight);
  note->Dirty = true;
  ElementBinding(mobjControl).Bind(*note);
  workflow.Dirty(true);
  return note;
}

std::shared_ptr<Vector> Inserting::CurrentSegment() const {
  const Element* element = mobjControl.CurrentControl().get();
  if (!element || element->Family() != ctlLineFamily) return nullptr;
  return std::dynamic_pointer_cast<Vector>(mobjControl.GetVNTRObject(element->Tag()));
}

void Inserting::InsertElbow() {
  const auto vector = CurrentSegment();
  if (!vector) return;
  vector->Arc()->InsertVector(vector);
  mobjControl.Dirty(true);
}

void Inserting::RemoveElbow() {
  const auto vector = CurrentSegment();
  if (!vector) return;
  const auto arc = vector->Arc().Lock();
  if (arc->Segments().size() < 2) return;
  mobjControl.CurrentControl(nullptr);
  std::vector<std::shared_ptr<ChartObject>> leaving{vector};
  if (const auto bendPoint = BendPointGoingWith(*vector)) {
    if (bendPoint->Handle) bendPoint->Handle->Unload();
    leaving.push_back(bendPoint);
  }
  Selecting(mobjControl).Forget(leaving);
  arc->Selected(false);
  arc->RemoveVector(vector);
  arc->RemoveFocus();
  if (mobjControl.Comfort.ChosenIsSeen) mobjControl.Selection(nullptr);
  mobjControl.Dirty(true);
}

}  // namespace vantrel

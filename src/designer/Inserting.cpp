#include "designer/Inserting.h"

#include "designer/ChartObjects.h"
#include "designer/CurrentPosition.h"
#include "designer/ElementBinding.h"
#include "designer/Selecting.h"
#include "designer/StillShown.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

constexpr std::int32_t kNoteWidth = 1200, kNoteHeight = 600;
constexpr std::int16_t kFlat = 0, kFixedSingle = 1;

// The one before the segment; behind it where the path begins.
std::shared_ptr<Elbow> BendPointGoingWith(const Vector& pobjSegment) {
  for (Elbow* bendPoint : pobjSegment.Elbows()) {
    const auto& joined = pobjSegment.InVector ? bendPoint->OutVector() : bendPoint->InVector();
    if (joined == &pobjSegment) return bendPoint->shared_from_this();
  }
  return nullptr;
}

}  // namespace

Workflow& Inserting::Chart() const { return *Ref<Workflow>(mobjControl.Workflow()); }

template <class N>
std::shared_ptr<N> Inserting::InsertNode(Collection<N>& pcolNodes, const std::string& pstrCaption) {
  RequirePosition(mobjControl);
  auto node = std::make_shared<N>();
  node->Workflow = mobjControl.Workflow();
  node->Key = NextKey(pcolNodes, pcolNodes.KeyWord());
  node->AssignName(NextName(pcolNodes, pcolNodes.KeyWord()));
  node->Caption(node->Name());
  node->Top(mobjControl.CurrentY);
  node->Left(mobjControl.CurrentX);
  ElementBinding(mobjControl).Bind(*node);
  pcolNodes.Add(node, node->Key);
  node->Caption(pstrCaption.empty() ? node->Name() : pstrCaption);
  node->Visible(true);
  node->Draw();
  return node;
}

std::shared_ptr<Place> Inserting::InsertPlace(const std::string& pstrCaption) {
  auto place = InsertNode(Chart().Places, pstrCaption);
  place->Dirty(true);
  Chart().Dirty(true);
  return place;
}

std::shared_ptr<Transition> Inserting::InsertTransition(const std::string& pstrCaption) {
  auto transition = InsertNode(Chart().Transitions, pstrCaption);
  Chart().Dirty(true);
  return transition;
}

std::shared_ptr<Notation> Inserting::AddNotation() {
  RequirePosition(mobjControl);
  Workflow& workflow = Chart();
  auto note = std::make_shared<Notation>();
  note->Workflow = &workflow;
  note->Key = NextKey(workflow.Notations, workflow.Notations.KeyWord());
  MoveTo(*note, mobjControl.CurrentX, mobjControl.CurrentY);
  note->Appearance = kFlat;
  note->BorderStyle = kFixedSingle;
  note->Width(kNoteWidth);
  note->Height(kNoteHeight);
  note->Dirty = true;
  ElementBinding(mobjControl).Bind(*note);
  workflow.Notations.Add(note, note->Key);
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
  const StillShown shown(mobjControl);
  vector->Arc()->InsertVector(vector);
  if (shown) mobjControl.Dirty(true);
}

void Inserting::RemoveElbow() {
  const auto vector = CurrentSegment();
  if (!vector) return;
  const auto arc = vector->Arc().Lock();
  if (arc->Segments().size() < 2) return;
  mobjControl.CurrentControl(nullptr);
  // Off chart and selection first: removing it tells everybody, and listeners must find only what is left.
  std::vector<std::shared_ptr<ModelObject>> leaving{vector};
  if (const auto bendPoint = BendPointGoingWith(*vector)) {
    if (bendPoint->Handle) bendPoint->Handle->Unload();
    leaving.push_back(bendPoint);
  }
  Selecting(mobjControl).Forget(leaving);
  arc->Selected(false);
  const StillShown shown(mobjControl);
  arc->RemoveVector(vector);
  if (!shown) return;
  arc->RemoveFocus();
  mobjControl.Dirty(true);
}

}  // namespace vantrel

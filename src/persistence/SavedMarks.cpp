#include "persistence/SavedMarks.h"

namespace vantrel {

template <class T>
void SavedMarks::KeepFields(const std::shared_ptr<T>& pobjItem) {
  mcolUndo.emplace_back([pobjItem, recId = pobjItem->RecId, dirty = pobjItem->Dirty] {
    pobjItem->RecId = recId;
    pobjItem->Dirty = dirty;
  });
}

template <class T>
void SavedMarks::KeepAll(const Collection<T>& pcolItems) {
  for (const auto& item : pcolItems) Keep(item);
}

void SavedMarks::Keep(const std::shared_ptr<Workflow>& pobjWorkflow) {
  mcolUndo.emplace_back([workflow = pobjWorkflow, recId = pobjWorkflow->RecId, guid = pobjWorkflow->GUID, dirty = pobjWorkflow->Dirty()] {
    workflow->RecId = recId;
    workflow->GUID = guid;
    if (workflow->Dirty() != dirty) workflow->Dirty(dirty);
  });
}

void SavedMarks::Keep(const std::shared_ptr<Transition>& pobjTransition) {
  KeepFields(pobjTransition);
  mcolUndo.emplace_back([pobjTransition, subflowId = pobjTransition->SubflowId] { pobjTransition->SubflowId = subflowId; });
}

void SavedMarks::Keep(const std::shared_ptr<Place>& pobjPlace) {
  mcolUndo.emplace_back([pobjPlace, recId = pobjPlace->RecId(), dirty = pobjPlace->Dirty()] {
    pobjPlace->RecId(recId);
    pobjPlace->Dirty(dirty);
  });
}

void SavedMarks::Keep(const std::shared_ptr<Arc>& pobjArc) { KeepFields(pobjArc); }

void SavedMarks::Keep(const std::shared_ptr<Notation>& pobjNotation) { KeepFields(pobjNotation); }

void SavedMarks::Keep(const std::shared_ptr<WorkCase>& pobjWorkcase) { KeepFields(pobjWorkcase); }

void SavedMarks::Keep(const std::shared_ptr<Token>& pobjToken) { KeepFields(pobjToken); }

void SavedMarks::Keep(const std::shared_ptr<PropertyRecord>& pobjRecord) {
  mcolUndo.emplace_back([pobjRecord, id = pobjRecord->Id, token = pobjRecord->RowTokenId] {
    pobjRecord->Id = id;
    pobjRecord->RowTokenId = token;
  });
}

void SavedMarks::KeepChart(const std::shared_ptr<Workflow>& pobjWorkflow) {
  Keep(pobjWorkflow);
  KeepAll(pobjWorkflow->Transitions);
  KeepAll(pobjWorkflow->Places);
  KeepAll(pobjWorkflow->Arcs);
  KeepAll(pobjWorkflow->Notations);
}

void SavedMarks::Restore() {
  while (!mcolUndo.empty()) {
    const auto undo = std::move(mcolUndo.back());
    mcolUndo.pop_back();
    undo();
  }
}

}  // namespace vantrel

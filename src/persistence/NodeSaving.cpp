#include "persistence/ChartSaving.h"
#include "persistence/RowSaving.h"

namespace vantrel {

namespace {

void AssignIdentity(Recordset& pobjRow, const Node& pobjNode, std::int32_t plngWorkflowId) {
  pobjRow.Collect("Name", pobjNode.Name());
  pobjRow.Collect("WorkflowId", plngWorkflowId);
  pobjRow.Collect("Caption", pobjNode.Caption());
  pobjRow.Collect("Description", pobjNode.Description);
}

void AssignPosition(Recordset& pobjRow, const Node& pobjNode) {
  pobjRow.Collect("CtlTop", pobjNode.Top());
  pobjRow.Collect("CtlLeft", pobjNode.Left());
  pobjRow.Collect("InputPosition", pobjNode.InputPosition());
  pobjRow.Collect("OutputPosition", pobjNode.OutputPosition());
}

void AssignCaptionOffset(Recordset& pobjRow, const Node& pobjNode) {
  pobjRow.Collect("CaptionOffsetTop", pobjNode.CaptionOffsetTop());
  pobjRow.Collect("CaptionOffsetLeft", pobjNode.CaptionOffsetLeft());
}

void AssignCaptionSize(Recordset& pobjRow, const Node& pobjNode) {
  const Label* label = pobjNode.CaptionLabel.get();
  if (!label) return;
  pobjRow.Collect("CaptionHeight", label->Height());
  pobjRow.Collect("CaptionWidth", label->Width());
}

void AssignPictures(Recordset& pobjRow, const Node& pobjNode) {
  pobjRow.Collect("EnabledImageKey", pobjNode.EnabledImageKey);
  pobjRow.Collect("DisabledImageKey", pobjNode.DisabledImageKey);
}

void Assign(Recordset& pobjRow, const Transition& pobjTransition, std::int32_t plngWorkflowId) {
  AssignIdentity(pobjRow, pobjTransition, plngWorkflowId);
  pobjRow.Collect("SubflowId", pobjTransition.SubflowId);
  pobjRow.Collect("ObjectClassName", pobjTransition.ObjectClassName);
  pobjRow.Collect("ObjectName", pobjTransition.ObjectName);
  pobjRow.Collect("OutputType", std::int32_t{pobjTransition.OutputType()});
  pobjRow.Collect("TriggerType", std::int32_t{pobjTransition.TriggerType()});
  pobjRow.Collect("Action", pobjTransition.Action);
  AssignPosition(pobjRow, pobjTransition);
  AssignCaptionOffset(pobjRow, pobjTransition);
  AssignCaptionSize(pobjRow, pobjTransition);
  pobjRow.Collect("Duration", pobjTransition.Duration);
  pobjRow.Collect("DurationStdDev", pobjTransition.DurationStdDev);
  AssignPictures(pobjRow, pobjTransition);
}

void Assign(Recordset& pobjRow, const Place& pobjPlace, std::int32_t plngWorkflowId) {
  AssignIdentity(pobjRow, pobjPlace, plngWorkflowId);
  pobjRow.Collect("SelectionType", std::int32_t{pobjPlace.SelectionType});
  AssignPosition(pobjRow, pobjPlace);
  AssignCaptionSize(pobjRow, pobjPlace);
  AssignCaptionOffset(pobjRow, pobjPlace);
  AssignPictures(pobjRow, pobjPlace);
}

template <class T>
bool SaveNodes(DatabaseAccess& pobjAccess, const char* pstrTable, const Collection<T>& pcolNodes, std::int32_t plngWorkflowId) {
  return RunStep(pobjAccess, [&] {
    const RowSaving rows(pobjAccess, pstrTable, plngWorkflowId);
    rows.DeleteOthers(pcolNodes);
    for (const auto& node : pcolNodes) {
      rows.SaveItem(*node, [&](Recordset& pobjRow) { Assign(pobjRow, *node, plngWorkflowId); });
    }
  });
}

}  // namespace

bool SaveTransitions(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow) {
  return SaveNodes(pobjAccess, "Transition", pobjWorkflow.Transitions, pobjWorkflow.RecId);
}

bool SavePlaces(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow) {
  return SaveNodes(pobjAccess, "Place", pobjWorkflow.Places, pobjWorkflow.RecId);
}

}  // namespace vantrel

#include "persistence/ChartSaving.h"
#include "persistence/RowSaving.h"

namespace vantrel {

namespace {

void Assign(Recordset& pobjRow, const Arc& pobjArc, std::int32_t plngWorkflowId) {
  pobjRow.Collect("WorkflowId", plngWorkflowId);
  pobjRow.Collect("Description", pobjArc.Description);
  pobjRow.Collect("TransitionId", pobjArc.Transition->RecId);
  pobjRow.Collect("PlaceId", pobjArc.Place->RecId());
  pobjRow.Collect("WorkflowId", plngWorkflowId);
  pobjRow.Collect("ArcDirection", std::int32_t{pobjArc.ArcDirection});
  pobjRow.Collect("StdPath", pobjArc.StdPath);
  pobjRow.Collect("Guard", pobjArc.Guard());
  pobjRow.Collect("Weight", pobjArc.Weight());
  pobjRow.Collect("CaptionOffsetX", pobjArc.CaptionOffsetX());
  pobjRow.Collect("CaptionOffsetY", pobjArc.CaptionOffsetY());
  pobjRow.Collect("CaptionHeight", pobjArc.CaptionHeight());
  pobjRow.Collect("CaptionWidth", pobjArc.CaptionWidth());
  pobjRow.Collect("WeightOffsetX", pobjArc.WeightOffsetX());
  pobjRow.Collect("WeightOffsetY", pobjArc.WeightOffsetY());
  pobjRow.Collect("WeightHeight", pobjArc.WeightHeight());
  pobjRow.Collect("WeightWidth", pobjArc.WeightWidth());
}

}  // namespace

bool SaveArcs(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow) {
  const std::int32_t workflowId = pobjWorkflow.RecId;
  const RowSaving rows(pobjAccess, "Arc", workflowId);
  rows.DeleteOthers(pobjWorkflow.Arcs);
  for (const auto& arc : pobjWorkflow.Arcs) {
    if (!arc->Place || !arc->Transition) continue;
    rows.SaveItem(
        *arc, [&](Recordset& pobjRow) { Assign(pobjRow, *arc, workflowId); }, "Arc");
  }
  return !pobjWorkflow.Arcs.IsEmpty();
}

}  // namespace vantrel

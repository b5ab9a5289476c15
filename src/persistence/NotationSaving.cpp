#include "persistence/ChartSaving.h"
#include "persistence/RowSaving.h"

namespace vantrel {

namespace {

void Assign(Recordset& pobjRow, const Notation& pobjNotation, std::int32_t plngWorkflowId) {
  pobjRow.Collect("WorkflowId", plngWorkflowId);
  pobjRow.Collect("Caption", pobjNotation.Caption);
  pobjRow.Collect("Top", pobjNotation.Top());
  pobjRow.Collect("Left", pobjNotation.Left());
  pobjRow.Collect("Height", pobjNotation.Height());
  pobjRow.Collect("Width", pobjNotation.Width());
  pobjRow.Collect("BackColor", pobjNotation.BackColor);
  pobjRow.Collect("ForeColor", pobjNotation.ForeColor);
  pobjRow.Collect("Font", pobjNotation.Font);
  pobjRow.Collect("Size", pobjNotation.Size);
  pobjRow.Collect("Underline", pobjNotation.Underline);
  pobjRow.Collect("Strikethrough", pobjNotation.Strikethrough);
  pobjRow.Collect("Bold", pobjNotation.Bold);
  pobjRow.Collect("Italics", pobjNotation.Italics);
  pobjRow.Collect("Alignment", pobjNotation.Alignment);
  pobjRow.Collect("Appearance", pobjNotation.Appearance);
  pobjRow.Collect("BorderStyle", pobjNotation.BorderStyle);
  pobjRow.Collect("Protected", pobjNotation.Protected);
  pobjRow.Collect("Tag", pobjNotation.Tag);
}

}  // namespace

bool SaveNotations(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow) {
  return RunStep(pobjAccess, [&] {
    const std::int32_t workflowId = pobjWorkflow.RecId;
    const RowSaving rows(pobjAccess, "Notation", workflowId);
    rows.DeleteOthers(pobjWorkflow.Notations);
    for (const auto& notation : pobjWorkflow.Notations) {
      rows.SaveItem(*notation, [&](Recordset& pobjRow) { Assign(pobjRow, *notation, workflowId); });
    }
  });
}

}  // namespace vantrel

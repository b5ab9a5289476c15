#include "database/Recordset.h"
#include "model/DesignerState.h"
#include "model/RowText.h"
#include "model/Transition.h"
#include "model/Workflow.h"
#include "model/WorkflowReader.h"

namespace vantrel {

void Transition::AssignValues(const Recordset& pobjRow) {
  RecId = pobjRow.Fields("Id").Value.ToInt32();
  mName = pobjRow.Fields("Name").Value.ToText();
  const Variant& caption = pobjRow.Fields("Caption").Value;
  mCaption = caption.IsNull() ? mName : caption.ToText();
  Description = TextOrNone(pobjRow.Fields("Description").Value);
  Action = TextOrNone(pobjRow.Fields("Action").Value);
  SubflowId = pobjRow.Fields("SubflowId").Value.ToInt32();
  ObjectClassName = TextOrNone(pobjRow.Fields("ObjectClassName").Value);
  ObjectName = TextOrNone(pobjRow.Fields("ObjectName").Value);
  mOutputType = static_cast<OutputTypes>(pobjRow.Fields("OutputType").Value.ToInt32());
  mTriggerType = static_cast<TriggerTypes>(pobjRow.Fields("TriggerType").Value.ToInt32());
  Duration = pobjRow.Fields("Duration").Value.ToDouble();
  DurationStdDev = pobjRow.Fields("DurationStdDev").Value.ToDouble();
  AssignLook(pobjRow);
  if (SubflowId != 0) ReadSubflow();
}

void Transition::ReadSubflow() {
  WorkflowReader* reader = gobjVantrel->VNTRDB();
  if (!reader) reader = gobjWorkflowReader;
  if (!reader) throw Error(vntErrObjectNotSet);
  Object(reader->ReadWorkflow(SubflowId));
}

}  // namespace vantrel

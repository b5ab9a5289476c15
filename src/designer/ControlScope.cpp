#include "designer/ControlScope.h"

#include "designer/Vantrel.h"

namespace vantrel {

ControlScope::ControlScope(const Vantrel& pobjControl) : mobjCall(*pobjControl.mobjState) {
  // Reading a workflow makes it gobjWorkflow.
  Ref<Workflow>& shown = pobjControl.mobjState->Workflow;
  if (!(shown == pobjControl.mWorkflow)) shown = pobjControl.mWorkflow;
}

}  // namespace vantrel

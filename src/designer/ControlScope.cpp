#include "designer/ControlScope.h"

#include "designer/ControlParts.h"

namespace vantrel {

ControlScope::ControlScope(const Vantrel& pobjControl) : mobjCall(PartsOf(pobjControl).State) {
  // Reading a workflow makes it gobjWorkflow.
  Ref<Workflow>& shown = PartsOf(pobjControl).State.Workflow;
  if (!(shown == pobjControl.Workflow())) shown = pobjControl.Workflow();
}

}  // namespace vantrel

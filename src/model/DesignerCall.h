// A call of a control, or of a workflow that a control shows.
#pragma once

#include "model/Workflow.h"

namespace vantrel {

/// Makes a state the current one while it lives. At its end the previous state becomes current again, or, after the outermost call, the
/// newest. Any of them may be deleted meanwhile.
class DesignerCall {
 public:
  explicit DesignerCall(DesignerState& pobjState) {
    ++DesignerState::sCalls;
    if (DesignerState::sCurrent == &pobjState) return;
    mobjBefore = DesignerState::sCurrent;
    DesignerState::sCurrent = &pobjState;
  }
  /// The state of the control that shows the workflow. A workflow that was read meanwhile is not shown.
  explicit DesignerCall(const Ref<Workflow>& pobjWorkflow) : DesignerCall(DesignerOf(pobjWorkflow)) {
    DesignerState& state = DesignerState::Current();
    if (pobjWorkflow && pobjWorkflow->IsShown() && !(state.Workflow == pobjWorkflow)) state.Workflow = pobjWorkflow;
  }
  ~DesignerCall() {
    if (--DesignerState::sCalls == 0) {
      DesignerState::sCurrent = DesignerState::sNewest;
    } else if (mobjBefore.IsSet()) {
      DesignerState::sCurrent = mobjBefore ? mobjBefore.get() : DesignerState::sNewest;
    }
  }
  DesignerCall(const DesignerCall&) = delete;
  DesignerCall& operator=(const DesignerCall&) = delete;

 private:
  Ref<DesignerState> mobjBefore;  // null if nothing changed
};

}  // namespace vantrel

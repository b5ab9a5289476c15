// Whether an operation may go on after an event.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

/// Listeners may assign another workflow or end the control. Tests false from then on: the operation that raised the event must
/// stop, without touching either.
class StillShown {
 public:
  explicit StillShown(Vantrel& pobjControl) : mobjControl(&pobjControl), mobjWorkflow(pobjControl.Workflow()) {}
  explicit operator bool() const { return mobjControl && mobjWorkflow == mobjControl->Workflow(); }
  bool HasControl() const { return static_cast<bool>(mobjControl); }

 private:
  Ref<Vantrel> mobjControl;
  Ref<Workflow> mobjWorkflow;
};

}  // namespace vantrel

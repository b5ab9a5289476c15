// A call of a control.
#pragma once

#include "designer/HostEvents.h"
#include "model/DesignerCall.h"

namespace vantrel {

/// Stands in every public operation of a control: its state is the current one until the scope ends, and what its host is to hear waits
/// (HostEvents). The control may go meanwhile.
class ControlScope {
 public:
  explicit ControlScope(const Vantrel& pobjControl);

 private:
  HostEvents mobjEvents;  // ends after the call
  DesignerCall mobjCall;
};

}  // namespace vantrel

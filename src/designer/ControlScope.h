// A call of a control.
#pragma once

#include "designer/HostEvents.h"
#include "model/DesignerCall.h"

namespace vantrel {

/// Used in every public operation of a control: makes its state the current one until the scope ends, and holds back events for the host
/// (HostEvents). The control may be destroyed meanwhile.
class ControlScope {
 public:
  explicit ControlScope(const Vantrel& pobjControl);

 private:
  HostEvents mobjEvents;  // ends after the call
  DesignerCall mobjCall;
};

}  // namespace vantrel

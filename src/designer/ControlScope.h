// A call of a control.
#pragma once

#include "model/DesignerCall.h"

namespace vantrel {

class Vantrel;

/// Stands in every public operation of a control: its state is the current one until the scope ends. The control may go meanwhile.
class ControlScope {
 public:
  explicit ControlScope(const Vantrel& pobjControl);

 private:
  DesignerCall mobjCall;
};

}  // namespace vantrel

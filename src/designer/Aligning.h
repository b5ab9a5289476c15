// Lines up the selected objects.
#pragma once

#include <string>

#include "designer/Vantrel.h"

namespace vantrel {

/// Aligns the centres of their pictures. The first one that is not a bend point stays where it is.
class Aligning {
 public:
  explicit Aligning(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// "Vertical" or "Horizontal": the direction of the line.
  void Align(const std::string& pstrDirection);

 private:
  Vantrel& mobjControl;
};

}  // namespace vantrel

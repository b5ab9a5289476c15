// Inserts arcs.
#pragma once

#include <memory>

#include "designer/Vantrel.h"

namespace vantrel {

/// The rules that an arc must satisfy, their messages, and the beginning and end of the gesture that draws one.
class ArcInserting {
 public:
  explicit ArcInserting(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  std::shared_ptr<Arc> Insert(const std::shared_ptr<ModelObject>& pobjFrom, const std::shared_ptr<ModelObject>& pobjTo);
  void Start();
  void End();

 private:
  Vantrel& mobjControl;
};

}  // namespace vantrel

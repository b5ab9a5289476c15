// The element that the user clicked last.
#pragma once

#include <memory>

#include "designer/Vantrel.h"

namespace vantrel {

/// Making an element current selects its object, tells the host, and marks the element.
class CurrentElement {
 public:
  explicit CurrentElement(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// Error 91 for an element that shows no object of the workflow. If a listener to OnSelected shows something else, that stays.
  void Set(const Ref<Element>& pobjElement);

 private:
  void DropHighlight();
  void Mark(Element& pobjElement, const std::shared_ptr<ModelObject>& pobjObject);
  void KeepSelectionOf(const std::shared_ptr<ModelObject>& pobjObject);

  Vantrel& mobjControl;
};

}  // namespace vantrel

// Inserts places, transitions, notes and bend points.
#pragma once

#include <memory>
#include <string>

#include "designer/Vantrel.h"

namespace vantrel {

/// Inserts at the control's current position. Error 91 without a workflow.
class Inserting {
 public:
  explicit Inserting(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  std::shared_ptr<Place> InsertPlace(const std::string& pstrCaption);
  std::shared_ptr<Transition> InsertTransition(const std::string& pstrCaption);
  std::shared_ptr<Notation> AddNotation();
  /// Splits the segment that is the current element, if one is.
  void InsertElbow();
  /// Removes that segment, unless it is the arc's only one.
  void RemoveElbow();

 private:
  /// The shown workflow.
  Workflow& Chart() const;
  template <class N>
  void Show(N& pobjNode, const std::string& pstrCaption);
  std::shared_ptr<Vector> CurrentSegment() const;

  Vantrel& mobjControl;
};

}  // namespace vantrel

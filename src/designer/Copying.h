// Fills the clipboard.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

/// The clipboard becomes the selection's own collection, not a copy of it, with the arcs whose two ends are selected. With
/// Comfort::PasteKeepsOriginals it becomes a collection of its own.
class Copying {
 public:
  explicit Copying(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  void Copy();

 private:
  void AddInnerArcs(ObjectCollection& pcolObjects) const;

  Vantrel& mobjControl;
};

}  // namespace vantrel

// Inserts copies of what is on the clipboard.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "designer/CopiedArcs.h"
#include "designer/FreeNames.h"
#include "designer/Vantrel.h"

namespace vantrel {

/// The group keeps its layout; its top-left corner comes to the control's current position. What is selected goes first, and the
/// copies of places, transitions and notes are the selection then. Arcs are pasted between copies of both their ends alone.
/// One pass over the clipboard and one over the workflow.
class Pasting {
 public:
  explicit Pasting(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  void Paste();

 private:
  using Objects = std::vector<std::shared_ptr<ModelObject>>;

  void TakeCorner(const Objects& pcolObjects);
  void PasteAll(const Objects& pcolObjects);
  void PasteNotation(const std::shared_ptr<Notation>& pobjFrom);
  template <class N>
  void PasteNode(const std::shared_ptr<N>& pobjFrom, Collection<N>& pcolNodes, FreeNames& pobjNames);
  void PasteArc(const Arc& pobjFrom);
  /// The selection lists it under the key of the object that it was copied from.
  void SelectCopy(const ModelObject& pobjFrom, const std::shared_ptr<ModelObject>& pobjCopy);

  Vantrel& mobjControl;
  std::shared_ptr<Workflow> mobjWorkflow;
  std::unordered_map<const ModelObject*, std::shared_ptr<ModelObject>> mCopies;
  float msngShiftX = 0, msngShiftY = 0;
};

}  // namespace vantrel

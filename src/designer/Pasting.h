// Inserts copies of what is on the clipboard.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "designer/Vantrel.h"

namespace vantrel {

/// Moves the group's top-left corner to the control's current position and keeps its layout. Deletes the selection first and then selects
/// the copies of places, transitions and notes. Pastes an arc only between copies of both its ends. See also
/// Comfort::PasteKeepsOriginals.
/// Everything that can fail is done before anything is deleted.
class Pasting {
 public:
  explicit Pasting(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  void Paste();

 private:
  using Objects = std::vector<std::shared_ptr<ModelObject>>;

  void ChoosePlace(const Objects& pcolObjects);
  void MakeRoom();
  void RequirePictures(const Objects& pcolObjects) const;
  void RequireKeys(const Objects& pcolObjects) const;
  void ChooseNames(const Objects& pcolObjects);
  void PasteAll(const Objects& pcolObjects);
  void PasteNotation(const std::shared_ptr<Notation>& pobjFrom);
  template <class N>
  void PasteNode(const std::shared_ptr<N>& pobjFrom, Collection<N>& pcolNodes);
  void PasteArc(const Arc& pobjFrom);
  /// The selection lists it under the key of the object that it was copied from.
  void SelectCopy(const ModelObject& pobjFrom, const std::shared_ptr<ModelObject>& pobjCopy);

  Vantrel& mobjControl;
  std::shared_ptr<Workflow> mobjWorkflow;
  std::unordered_map<const ModelObject*, std::string> mNames;                    // of the copies
  std::unordered_map<const ModelObject*, std::shared_ptr<ModelObject>> mCopies;  // by what they were copied from
  float msngShiftX = 0, msngShiftY = 0;
};

}  // namespace vantrel

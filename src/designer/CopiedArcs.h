// The paths of the arcs on a clipboard.
#pragma once

#include <memory>
#include <unordered_map>

#include "designer/Vantrel.h"

namespace vantrel {

/// An arc's segments and bend points live with its workflow and go when the arc is deleted or the workflow is closed. For an arc
/// on the clipboard this keeps a copy on a chart of its own, which can be cloned then.
class CopiedArcs {
 public:
  /// Copies the paths of the collection's arcs as they are now; keeps earlier copies of those that are gone already, and forgets
  /// arcs that are not in the collection.
  void Keep(const ObjectCollection& pcolObjects);
  /// What to clone for that arc, or null when nothing of it is known.
  const Arc* CopyOf(const Arc& pobjArc) const;

 private:
  struct Copy {
    std::shared_ptr<Workflow> Chart;
    std::shared_ptr<Place> End;
    std::shared_ptr<Transition> OtherEnd;
    std::shared_ptr<Arc> Path;
  };
  static Copy Take(const Arc& pobjArc, const std::shared_ptr<Workflow>& pobjChart);

  std::unordered_map<const ModelObject*, Copy> mCopies;  // by arcs that the clipboard shares
};

}  // namespace vantrel

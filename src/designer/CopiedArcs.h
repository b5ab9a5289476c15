// The paths of the arcs on clipboards.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

/// An arc's segments and bend points belong to its workflow and go when the arc is deleted or the workflow is closed. This keeps a
/// copy of the path for every arc of the collection, as long as the arc lives: a host may hand the clipboard to another control. An arc
/// that has lost its path already keeps the copy that was made before.
void KeepPaths(const ObjectCollection& pcolObjects);

/// An arc with the path that was kept for this one, to be cloned; null when no path was kept.
const Arc* KeptPathOf(const Arc& pobjArc);

}  // namespace vantrel

// Fills the clipboard.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

/// Makes the selection's own collection the clipboard, not a copy of it, and adds the arcs whose two ends are selected. With
/// Comfort::PasteKeepsOriginals the clipboard is a separate collection.
void CopySelection(Vantrel& pobjControl);

}  // namespace vantrel

// Inserts copies of what is on the clipboard.
#pragma once

#include "designer/Vantrel.h"

namespace vantrel {

/// Moves the group's top-left corner to the control's current position and keeps its layout. Deletes the selection first and then selects
/// the copies of places, transitions and notes. Pastes an arc only between copies of both its ends. See also
/// Comfort::PasteKeepsOriginals.
/// Everything that can fail is done before anything is deleted.
void PasteClipboard(Vantrel& pobjControl);

}  // namespace vantrel

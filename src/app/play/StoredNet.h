// Reads a net to play from a database.
#pragma once

#include <cstdint>

#include "app/database/OpenDatabase.h"
#include "interchange/PnmlImport.h"

namespace vantrel {

/// The workflow of that id as a net without initial marking, named "workflow" and its id. Throws DatabaseFailure.
LoadedNet ReadStoredNet(OpenDatabase& pobjDatabase, std::int32_t plngId);

}  // namespace vantrel

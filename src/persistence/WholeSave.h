// Saves a workflow together with all that it embeds.
#pragma once

#include <memory>

#include "persistence/VNTRDB.h"

namespace vantrel {

/// Saves the workflow, the workflows embedded in its transitions at any depth (inner ones first, each once; SubflowId becomes the inner
/// one's id), and the token property definitions of all their places: all or nothing. Saves no cases and tokens.
///
/// Throws an Error with the first failure's description when anything was refused; then database, ids and dirty marks are as before.
/// Shows failing statements in message boxes, as VNTRDB does.
void SaveWhole(VNTRDB& pobjDatabase, const std::shared_ptr<Workflow>& pobjWorkflow);

}  // namespace vantrel

// Saving a workflow together with all that it is made of.
#pragma once

#include <memory>

#include "persistence/VNTRDB.h"

namespace vantrel {

/// Saves the workflow, the workflows embedded in its transitions however deep (inner ones first, each once; SubflowId becomes
/// the inner one's id), and the token property definitions of all their places: all of it or nothing. Cases and tokens are
/// not part of it.
///
/// Throws an Error with the first failure's description when anything at all was refused; then the database is what it was,
/// and so are ids and dirty marks. Failing statements are shown in message boxes, as by VNTRDB.
void SaveWhole(VNTRDB& pobjDatabase, const std::shared_ptr<Workflow>& pobjWorkflow);

}  // namespace vantrel

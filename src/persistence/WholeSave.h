// Saving a workflow together with all that it is made of.
#pragma once

#include <memory>

#include "database/Connection.h"
#include "model/Workflow.h"

namespace vantrel {

/// Saves the workflow, the workflows embedded in its transitions however deep (inner ones first, each once; SubflowId becomes
/// the inner one's id), and the token property definitions of all their places: all of it or nothing. Cases and tokens are
/// not part of it.
///
/// Whatever others have saved or deleted meanwhile, the database has the workflow afterwards as it is here: rows that others made go, rows
/// that they deleted are inserted anew, with new ids. So is the workflow itself where its id belongs to another one by now.
///
/// Throws an Error with the first failure's description when anything at all was refused; then the database is what it was,
/// and so are ids and dirty marks. Shows nothing.
void SaveWhole(const std::shared_ptr<Connection>& pobjConnection, const std::shared_ptr<Workflow>& pobjWorkflow);

}  // namespace vantrel

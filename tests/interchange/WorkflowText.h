#pragma once

#include <string>

#include "model/Workflow.h"

namespace vantrel::test {

/// Everything of a workflow that is stored, a line an object, numbers exactly: two workflows are the same when their texts are. Objects go
/// by position instead of key, and embedded workflows are written where they are first met.
std::string TextOf(const Workflow& pobjWorkflow);

}  // namespace vantrel::test

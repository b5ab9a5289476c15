#pragma once

#include <string>

#include "model/Workflow.h"

namespace vantrel::test {

/// Everything of a workflow that is stored, a line for each object, with exact numbers: equal workflows have equal texts. Objects are named
/// by position instead of key, and embedded workflows are written where they are first met.
std::string TextOf(const Workflow& pobjWorkflow);

}  // namespace vantrel::test

#pragma once

#include <memory>
#include <string>

#include "model/Workflow.h"

namespace vantrel::test {

/// A workflow with every stored field set to something odd, the same for the same seed. Gives seeds above 0 at least one object
/// of each kind.
std::shared_ptr<Workflow> OddWorkflow(unsigned plngSeed);

/// Everything that the database keeps, without ids and keys, line by line.
std::string Described(const Workflow& pobjWorkflow);

}  // namespace vantrel::test

// Ids on the command line.
#pragma once

#include <limits>

#include <CLI/CLI.hpp>

#include "app/WholeNumber.h"

namespace vantrel {

/// For Option::transform: an id that a stored workflow can have.
inline CLI::Validator WorkflowId() { return WholeNumber(1, std::numeric_limits<std::int32_t>::max()); }

}  // namespace vantrel

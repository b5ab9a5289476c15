// Counts the stored cases and tokens of a workflow.
#pragma once

#include <cstdint>

#include "database/Connection.h"

namespace vantrel {

struct StoredRun {
  std::int32_t Cases = 0;
  std::int32_t Tokens = 0;          ///< consumed ones included
  std::int32_t TokensInPlaces = 0;  ///< not consumed
};

/// Throws the Errors of the connection.
StoredRun CountStoredRun(Connection& pobjConnection, std::int32_t plngWorkflowId);

}  // namespace vantrel

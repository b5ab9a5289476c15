#pragma once

#include <cstdint>
#include <memory>

#include "model/Place.h"

namespace vantrel {

/// Tokens that a file puts into a place before anything fires.
struct InitialTokens {
  std::shared_ptr<Place> Where;
  std::int32_t Count = 0;
};

}  // namespace vantrel

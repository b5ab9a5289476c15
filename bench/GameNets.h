// The nets for measuring the token game, as workflows and as arrays.
#pragma once

#include <cstdint>
#include <memory>

#include "ArrayNet.h"
#include "model/Workflow.h"

namespace vantrel::bench {

enum class Shape : std::int64_t {
  Ring,     ///< ten transitions in a circle, one token
  ForkJoin  ///< one transition feeds fifty branches of one transition each, which another one joins and leads back
};

/// The net with its first token in place (of one case).
std::shared_ptr<Workflow> MakeWorkflow(Shape pShape);
ArrayNet MakeArrayNet(Shape pShape);

/// A straight chain of transitions, either all automatic or all not, ready for a token in its start place.
std::shared_ptr<Workflow> MakeChain(std::int32_t plngTransitions, TriggerTypes pTrigger);

}  // namespace vantrel::bench

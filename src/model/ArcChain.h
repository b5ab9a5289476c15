// The order of an arc's segments along its path.
#pragma once

#include <vector>

#include "model/Forward.h"

namespace vantrel {

/// The segments of an arc from its source to its target. Segments that come from a database carry no links: then each is
/// followed by one that starts where it ends, from the one at which nothing ends; where neither leads through all of them,
/// they stay in the workflow's order. Good until an object is removed from the workflow.
std::vector<Vector*> ChainOf(const Arc& pobjArc);

}  // namespace vantrel

// The order of an arc's segments along its path.
#pragma once

#include <vector>

#include "model/Forward.h"

namespace vantrel {

/// The segments of an arc from its source to its target, by their links. Segments from a database have no links: then the first is the one
/// at which none ends, and each is followed by one that starts where it ends. If neither way leads through all of them, they keep the
/// workflow's order. Valid until an object is removed from the workflow.
std::vector<Vector*> ChainOf(const Arc& pobjArc);

}  // namespace vantrel

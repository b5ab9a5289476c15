// The workflow that "New" shows.
#pragma once

#include <memory>

#include "model/Workflow.h"

namespace vantrel {

/// A start place, a transition after it, and an end place that no arc leads to yet. `psngTop` is their position, twips.
std::shared_ptr<Workflow> MakeDefaultWorkflow(float psngTop);

}  // namespace vantrel

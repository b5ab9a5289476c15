#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// A workflow that takes part in a run.
struct PlayedNet {
  std::shared_ptr<vantrel::Workflow> Workflow;
  std::string Prefix;  ///< in front of its keys: "Transition4/" for the workflow embedded in that transition, else empty
};

/// The workflow and those embedded in its transitions, in the order of the transitions; each stands before those that it embeds.
/// One that several transitions embed is listed once, with the key of the first of them.
std::vector<PlayedNet> PlayedNetsOf(const std::shared_ptr<Workflow>& pobjWorkflow);

}  // namespace vantrel

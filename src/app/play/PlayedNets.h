#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// A workflow that takes part in a run.
struct PlayedNet {
  std::shared_ptr<vantrel::Workflow> Workflow;
  std::string Prefix;  ///< what tells its keys from those of the others: "Transition4/" inside that transition, empty outside
};

/// The workflow and those embedded in its transitions: each before those that it embeds, otherwise in the order of the
/// transitions.
std::vector<PlayedNet> PlayedNetsOf(const std::shared_ptr<Workflow>& pobjWorkflow);

}  // namespace vantrel

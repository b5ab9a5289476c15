// Words for what a workflow's settings say.
#pragma once

#include <string>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

struct Flag {
  const char* Name;
  bool IsOn;
};

std::vector<Flag> FlagsOf(const Workflow& pobjWorkflow);

/// The text of an id that the database gives; empty where it gave none.
std::string TextOf(const Variant& pvarGUID);

/// A lower-case word; the number for a value without a name.
std::string NameOfTrigger(TriggerTypes pType);
std::string NameOfOutput(OutputTypes pType);

}  // namespace vantrel

// Words for a workflow's settings.
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

/// The text of an id given by the database; empty if it gave none.
std::string TextOf(const Variant& pvarGUID);

/// A lower-case word, or the number for a value without a name.
std::string NameOfTrigger(TriggerTypes pType);
std::string NameOfOutput(OutputTypes pType);

}  // namespace vantrel

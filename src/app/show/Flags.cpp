#include "app/show/Flags.h"

#include <array>
#include <cstddef>

namespace vantrel {

namespace {

// Both enumerations count from 1.
std::string WordOf(std::int32_t plngType, const std::array<const char*, 4>& pcolWords) {
  if (plngType < 1 || plngType > 4) return std::to_string(plngType);
  return pcolWords.at(static_cast<std::size_t>(plngType - 1));
}

}  // namespace

std::vector<Flag> FlagsOf(const Workflow& pobjWorkflow) {
  return {{"case_tracking", pobjWorkflow.CaseTracking},
          {"keep_history", pobjWorkflow.KeepHistory},
          {"show_guards", pobjWorkflow.ShowGuards},
          {"show_weights", pobjWorkflow.ShowWeights},
          {"lock_controls", pobjWorkflow.LockControls}};
}

std::string TextOf(const Variant& pvarGUID) { return pvarGUID.IsNull() ? "" : pvarGUID.ToText(); }

std::string NameOfTrigger(TriggerTypes pType) { return WordOf(pType, {"user", "automatic", "message", "timed"}); }

std::string NameOfOutput(OutputTypes pType) { return WordOf(pType, {"broadcast", "select", "distribute", "programmed"}); }

}  // namespace vantrel

// Where a run keeps its cases and tokens.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// What an earlier run left in a store.
struct TakenUp {
  std::vector<std::string> CaseKeys;  ///< of all its cases: those started now need others
  std::vector<std::string> Finished;  ///< keys of the finished cases that are known by name
  std::int64_t CasesUnderWay = 0;
};

/// Hears of a run between its firings, where every token is in one place: a state that another run can go on from.
class PlayStore {
 public:
  PlayStore() = default;
  PlayStore(const PlayStore&) = delete;
  PlayStore& operator=(const PlayStore&) = delete;
  virtual ~PlayStore() = default;

  /// Puts what is stored into the workflow, which has no tokens yet.
  virtual TakenUp TakeUp() = 0;
  /// May store the state: when it does is the store's affair. Steps are firings and cases started since the run began.
  virtual void Pass(std::int64_t plngSteps) = 0;
  /// Stores the state.
  virtual void Finish() = 0;
};

}  // namespace vantrel

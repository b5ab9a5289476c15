// Keeps the cases and tokens of a run.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// What an earlier run left in a store.
struct TakenUp {
  std::vector<std::string> CaseKeys;  ///< of all its cases; new cases need other keys
  std::vector<std::string> Finished;  ///< keys of the finished cases, where they are known
  std::int64_t CasesUnderWay = 0;
};

/// Is called between the firings of a run, when every token is in one place: another run can go on from that state.
class PlayStore {
 public:
  PlayStore() = default;
  PlayStore(const PlayStore&) = delete;
  PlayStore& operator=(const PlayStore&) = delete;
  virtual ~PlayStore() = default;

  /// Puts the stored cases and tokens into the workflow, which has no tokens yet.
  virtual TakenUp TakeUp() = 0;
  /// May store the state; the store decides when it does. Steps are firings and cases started since the run began.
  virtual void Pass(std::int64_t plngSteps) = 0;
  /// Stores the state.
  virtual void Finish() = 0;
};

}  // namespace vantrel

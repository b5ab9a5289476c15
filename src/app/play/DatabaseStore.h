// Stores the cases and tokens of a run in the database that its workflow came from.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

#include "app/database/OpenDatabase.h"
#include "app/play/PlayStore.h"

namespace vantrel {

/// Writes changes in one transaction for every thousand firings or started cases, at least once a second. Throws DatabaseFailure; what was
/// written before is kept then. The tokens of embedded workflows are not stored: a subflow that was running starts again, as its
/// transition consumes tokens only when it delivers.
class DatabaseStore final : public PlayStore {
 public:
  /// The database must outlive the store.
  DatabaseStore(OpenDatabase& pobjDatabase, std::shared_ptr<Workflow> pobjWorkflow);

  TakenUp TakeUp() override;
  void Pass(std::int64_t plngSteps) override;
  void Finish() override { Save(); }

 private:
  using Clock = std::chrono::steady_clock;
  using Group = std::vector<std::shared_ptr<Token>>;  // of one case, or of none

  void Save();
  void GatherNew();
  // In the order of their first tokens, so that ids follow the order in which tokens were made as far as cases allow.
  std::vector<Group> TakeTouched();
  bool HasLeft(Token& pobjToken) const;
  void Write(const std::vector<Group>& pcolTouched);
  // Throws when the workflow is gone, or when another run goes on with the same tokens.
  void CheckStillOurs();
  std::int32_t LargestTokenId();

  OpenDatabase& mDatabase;
  std::shared_ptr<Workflow> mobjWorkflow;
  Collection<Token>::Cursor mNew;                  // after the tokens that mcolLiving has or had
  std::vector<std::shared_ptr<Token>> mcolLiving;  // tokens that can still change
  std::int64_t mlngSavedAt = 0;                    // steps
  std::int32_t mlngLargestTokenId = -1;            // that we know of; -1 when no other run could go on with our tokens
  Clock::time_point mDue;
};

}  // namespace vantrel

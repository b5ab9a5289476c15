// Statements that a session has prepared on its server.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <unordered_map>

#include "database/postgres/PostgresLink.h"
#include "database/postgres/PostgresValues.h"

namespace vantrel {

/// Finds prepared statements by their text. When all places are taken, a new statement replaces the oldest.
class PostgresStatements {
 public:
  static constexpr std::size_t kPlaces = 200;

  /// Queues the statement, and before that its preparation if it is new.
  void Queue(PostgresLink& pobjLink, const std::string& pstrText, const PostgresParameters& pobjParameters);
  /// Call it after each flight, with the number of its commands that succeeded.
  void Landed(std::size_t plngDone);
  /// Has the text prepared again when it comes next. True when it was prepared before.
  bool Forget(const std::string& pstrText);

 private:
  struct Slot {
    std::string Text;
    bool IsOnServer = false;
  };

  void QueuePreparation(PostgresLink& pobjLink, const std::string& pstrText);

  std::array<Slot, kPlaces> mSlots;
  std::unordered_map<std::string, std::size_t> mSlotOfText;
  std::size_t mNextSlot = 0;
  // Of the flight under way: the slot that is being filled, and what must succeed before it is free and full.
  bool mIsPreparing = false;
  std::size_t mSlot = 0, mCleared = 0, mFilled = 0;
};

}  // namespace vantrel

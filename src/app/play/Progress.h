#pragma once

#include <chrono>
#include <iosfwd>

#include "app/play/Player.h"

namespace vantrel {

/// A line on a terminal that says how far a run is. Appears after a second, changes five times a second, is gone at the end.
class Progress {
 public:
  using Clock = std::chrono::steady_clock;

  /// Times are arguments for the sake of tests.
  explicit Progress(std::ostream& pobjTerminal, Clock::time_point pStart = Clock::now());
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// Cheap enough for every firing.
  void Show(const PlayCounts& pobjCounts, Clock::time_point pNow = Clock::now());

 private:
  std::ostream& mTerminal;
  Clock::time_point mDue;
  bool mblnShown = false;
};

}  // namespace vantrel

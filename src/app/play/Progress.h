#pragma once

#include <iosfwd>

#include "app/ProgressLine.h"
#include "app/play/Player.h"

namespace vantrel {

/// A line on a terminal that says how far a run is.
class Progress {
 public:
  using Clock = ProgressLine::Clock;

  /// Times are arguments for the sake of tests.
  explicit Progress(std::ostream& pobjTerminal, Clock::time_point pStart = Clock::now()) : mLine(pobjTerminal, pStart) {}

  /// Cheap enough for every firing.
  void Show(const PlayCounts& pobjCounts, Clock::time_point pNow = Clock::now());

 private:
  ProgressLine mLine;
};

}  // namespace vantrel

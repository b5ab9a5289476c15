#pragma once

#include <iosfwd>

#include "app/ProgressLine.h"
#include "app/play/Player.h"

namespace vantrel {

/// Shows on a terminal how far a run is.
class Progress {
 public:
  using Clock = ProgressLine::Clock;

  /// Times are parameters so that tests can give them.
  explicit Progress(std::ostream& pobjTerminal, Clock::time_point pStart = Clock::now()) : mLine(pobjTerminal, pStart) {}

  /// Cheap enough to be called for every firing.
  void Show(const PlayCounts& pobjCounts, Clock::time_point pNow = Clock::now());

 private:
  ProgressLine mLine;
};

}  // namespace vantrel

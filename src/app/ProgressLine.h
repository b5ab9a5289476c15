// Shows progress on a terminal.
#pragma once

#include <chrono>
#include <iosfwd>
#include <string>

namespace vantrel {

/// A line that appears after a second, changes five times a second, and is erased at the end. Ask IsDue before making its text.
class ProgressLine {
 public:
  using Clock = std::chrono::steady_clock;

  /// Times are parameters so that tests can give them.
  explicit ProgressLine(std::ostream& pobjTerminal, Clock::time_point pStart = Clock::now());
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  bool IsDue(Clock::time_point pNow = Clock::now()) const { return pNow >= mDue; }
  void Show(const std::string& pstrText, Clock::time_point pNow = Clock::now());

 private:
  std::ostream& mTerminal;
  Clock::time_point mDue;
  bool mblnShown = false;
};

}  // namespace vantrel

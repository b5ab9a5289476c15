#include "app/play/Progress.h"

#include <ostream>

namespace vantrel {

namespace {

constexpr const char* kEraseLine = "\r\033[K";
constexpr std::chrono::milliseconds kPatience(1000), kPause(200);

}  // namespace

Progress::Progress(std::ostream& pobjTerminal, Clock::time_point pStart) : mTerminal(pobjTerminal), mDue(pStart + kPatience) {}

Progress::~Progress() {
  if (mblnShown) mTerminal << kEraseLine << std::flush;
}

void Progress::Show(const PlayCounts& pobjCounts, Clock::time_point pNow) {
  if (pNow < mDue) return;
  mDue = pNow + kPause;
  mblnShown = true;
  mTerminal << kEraseLine << pobjCounts.Firings << " firings, " << pobjCounts.TokensCreated << " tokens created, "
            << pobjCounts.CasesFinished << " cases finished" << std::flush;
}

}  // namespace vantrel

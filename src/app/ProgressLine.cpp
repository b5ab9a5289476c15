#include "app/ProgressLine.h"

#include <ostream>

namespace vantrel {

namespace {

constexpr const char* kEraseLine = "\r\033[K";
constexpr std::chrono::milliseconds kPatience(1000), kPause(200);

}  // namespace

ProgressLine::ProgressLine(std::ostream& pobjTerminal, Clock::time_point pStart) : mTerminal(pobjTerminal), mDue(pStart + kPatience) {}

ProgressLine::~ProgressLine() {
  if (mblnShown) mTerminal << kEraseLine << std::flush;
}

void ProgressLine::Show(const std::string& pstrText, Clock::time_point pNow) {
  mDue = pNow + kPause;
  mblnShown = true;
  mTerminal << kEraseLine << pstrText << std::flush;
}

}  // namespace vantrel

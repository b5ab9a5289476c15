#include "app/play/Progress.h"

#include <string>

namespace vantrel {

void Progress::Show(const PlayCounts& pobjCounts, Clock::time_point pNow) {
  if (!mLine.IsDue(pNow)) return;
  mLine.Show(std::to_string(pobjCounts.Firings) + " firings, " + std::to_string(pobjCounts.TokensCreated) + " tokens created, " +
                 std::to_string(pobjCounts.CasesFinished) + " cases finished",
             pNow);
}

}  // namespace vantrel

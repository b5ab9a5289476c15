#pragma once

#include <string>

namespace vantrel {

/// `vantrel` alone: the designer on the sample workflow or on what was open last, in the user's own database. Without a display it
/// draws the sample, plays it and tells what happened.
class SampleCommand {
 public:
  /// Returns an ExitStatus.
  int Run();

 private:
  int Design();
  int DrawAndPlay();
};

}  // namespace vantrel

#pragma once

#include <string>

namespace vantrel {

class DisplayQuestion;

/// `vantrel` alone: the designer on the sample workflow or on what was open last, in the user's own database. Without a display it
/// draws the sample, plays it and tells what happened.
class SampleCommand {
 public:
  /// Returns an ExitStatus.
  int Run();

 private:
  int Design(DisplayQuestion& pobjDisplay);
  int DrawAndPlay();
};

}  // namespace vantrel

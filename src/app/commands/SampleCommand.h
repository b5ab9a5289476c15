#pragma once

namespace vantrel {

/// `vantrel` alone: plays the sample net and tells what happened.
class SampleCommand {
 public:
  /// Returns an ExitStatus.
  int Run();
};

}  // namespace vantrel

// What the control does while a workflow is tested.
#pragma once

#include "model/Forward.h"

namespace vantrel {

class Vantrel;

/// The commands of the test pop-up, and the running of actions. This class itself does nothing.
class TestCommands {
 public:
  TestCommands() = default;
  TestCommands(const TestCommands&) = delete;
  TestCommands& operator=(const TestCommands&) = delete;
  virtual ~TestCommands() = default;

  virtual void StartTest(Vantrel& /*pobjControl*/) {}
  virtual void StopTest(Vantrel& /*pobjControl*/) {}
  virtual void StartTestCase(Vantrel& /*pobjControl*/) {}
  virtual void AddToken(Vantrel& /*pobjControl*/) {}
  virtual void RemoveToken(Vantrel& /*pobjControl*/) {}
  virtual void RunAction(Vantrel& /*pobjControl*/, Transition& /*pobjTransition*/) {}
  /// Ends a test and removes its cases.
  virtual void ForgetCases() {}
};

}  // namespace vantrel

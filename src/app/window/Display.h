#pragma once

#include <string>

#include <sys/types.h>

namespace vantrel {

/// Finds out in the background whether a window can be shown here. Make it before there are a QCoreApplication and threads.
class DisplayQuestion {
 public:
  DisplayQuestion();
  ~DisplayQuestion() { Wait(); }
  DisplayQuestion(const DisplayQuestion&) = delete;
  DisplayQuestion& operator=(const DisplayQuestion&) = delete;

  /// Waits for the answer: why no window can be shown, in a line; empty when one can.
  std::string WhyNot();

 private:
  void Wait();

  bool mblnChosen, mblnNamed;  // is there a platform, a display
  bool mblnAnswers = true;
  pid_t mlngChild = 0;
};

}  // namespace vantrel

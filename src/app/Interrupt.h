#pragma once

#include <csignal>

namespace vantrel {

/// While it lives, the first Ctrl-C only asks the program to come to an end, and the third one kills it as usual. One at a time.
class Interrupt {
 public:
  Interrupt();
  ~Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  bool Came() const;

 private:
  struct sigaction mBefore = {};
};

}  // namespace vantrel

#pragma once

#include <csignal>

namespace vantrel {

/// While one lives, the first Ctrl-C is a wish to come to an end, and the third one ends the program as ever. One at a time.
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

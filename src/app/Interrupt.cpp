#include "app/Interrupt.h"

namespace vantrel {

namespace {

volatile std::sig_atomic_t glngCame = 0;

}  // namespace

Interrupt::Interrupt() {
  glngCame = 0;
  struct sigaction action = {};
  // The third one kills the program. Not the second: a shell that stops a whole group of processes sends two at once.
  action.sa_handler = [](int) {
    const int came = glngCame + 1;
    glngCame = came;
    if (came < 3) return;
    std::signal(SIGINT, SIG_DFL);
    std::raise(SIGINT);
  };
  sigaction(SIGINT, &action, &mBefore);
}

Interrupt::~Interrupt() { sigaction(SIGINT, &mBefore, nullptr); }

bool Interrupt::Came() const { return glngCame != 0; }

}  // namespace vantrel

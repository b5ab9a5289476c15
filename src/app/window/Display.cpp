#include "app/window/Display.h"

#include <QGuiApplication>
#include <cstdlib>
#include <utility>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantrel {

namespace {

bool IsSet(const char* pstrVariable) {
  const char* const value = std::getenv(pstrVariable);
  return value && *value;
}

// A child process asks, because a display that does not answer ends the process that asks.
[[noreturn]] void Ask() {
  const rlimit none = {0, 0};
  setrlimit(RLIMIT_CORE, &none);
  const int silence = open("/dev/null", O_WRONLY);
  if (silence >= 0) dup2(silence, STDERR_FILENO);
  int count = 1;
  char name[] = "vantrel";
  char* arguments[] = {name, nullptr};
  const QGuiApplication application(count, arguments);
  _exit(0);
}

}  // namespace

DisplayQuestion::DisplayQuestion()
    : mblnChosen(IsSet("QT_QPA_PLATFORM")), mblnNamed(mblnChosen || IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY")) {
  if (!mblnNamed) return;
  mlngChild = fork();
  if (mlngChild == 0) Ask();
}

void DisplayQuestion::Wait() {
  const pid_t child = std::exchange(mlngChild, 0);
  int status = 0;
  if (child > 0 && waitpid(child, &status, 0) == child) mblnAnswers = WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::string DisplayQuestion::WhyNot() {
  if (!mblnNamed) return "no display: neither DISPLAY nor WAYLAND_DISPLAY says where windows go";
  Wait();
  if (mblnAnswers) return {};
  if (mblnChosen)
    return std::string("no display: QT_QPA_PLATFORM is \"") + std::getenv("QT_QPA_PLATFORM") + "\", which shows no windows here";
  return std::string("no display: ") + std::getenv(IsSet("DISPLAY") ? "DISPLAY" : "WAYLAND_DISPLAY") + " does not answer";
}

}  // namespace vantrel

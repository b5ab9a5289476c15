#include "app/window/Display.h"

#include <QGuiApplication>
#include <cstdlib>

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

// A display that does not answer ends the process that asks it: so a child asks.
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

bool Answers() {
  const pid_t child = fork();
  if (child < 0) return true;
  if (child == 0) Ask();
  int status = 0;
  return waitpid(child, &status, 0) != child || (WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

}  // namespace

std::string WhyNoDisplay() {
  const bool isChosen = IsSet("QT_QPA_PLATFORM");
  if (!isChosen && !IsSet("DISPLAY") && !IsSet("WAYLAND_DISPLAY")) {
    return "no display: neither DISPLAY nor WAYLAND_DISPLAY says where windows go";
  }
  if (Answers()) return {};
  if (isChosen)
    return std::string("no display: QT_QPA_PLATFORM is \"") + std::getenv("QT_QPA_PLATFORM") + "\", which shows no windows here";
  return std::string("no display: ") + std::getenv(IsSet("DISPLAY") ? "DISPLAY" : "WAYLAND_DISPLAY") + " does not answer";
}

}  // namespace vantrel

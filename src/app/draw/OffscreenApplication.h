// Qt without a display.
#pragma once

#include <QGuiApplication>
#include <QtGlobal>

namespace vantrel {

/// What pictures need of Qt, on the platform "offscreen" unless the environment's QT_QPA_PLATFORM names another; fonts are those of
/// fontconfig. The desktop's theme is not asked: it may want a display. While it lives, what Qt has to say of its surroundings stays
/// unsaid. One at a time, and none beside a QApplication.
class OffscreenApplication {
 public:
  OffscreenApplication();
  ~OffscreenApplication();
  OffscreenApplication(const OffscreenApplication&) = delete;
  OffscreenApplication& operator=(const OffscreenApplication&) = delete;

 private:
  // Qt keeps both as long as the application lives.
  char mstrName[8] = "vantrel", mstrPlatform[10] = "-platform", mstrOffscreen[10] = "offscreen";
  char mstrTheme[15] = "-platformtheme", mstrNoTheme[5] = "none";
  char* mcolArguments[6] = {mstrName, mstrPlatform, mstrOffscreen, mstrTheme, mstrNoTheme, nullptr};
  int mlngCount;
  QtMessageHandler mBefore;  // in force before the application is made
  QGuiApplication mobjApplication;
};

}  // namespace vantrel

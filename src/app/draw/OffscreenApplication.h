// Qt without a display.
#pragma once

#include <QGuiApplication>
#include <QtGlobal>

namespace vantrel {

/// What pictures need of Qt, on the platform "offscreen" unless the environment's QT_QPA_PLATFORM names another. Fonts come from
/// fontconfig. The desktop's theme is not used, as it may need a display. Hides Qt's messages about its surroundings while it lives.
/// One at a time, and not beside a QApplication.
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

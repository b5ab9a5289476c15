#include "app/draw/OffscreenApplication.h"

#include <QString>
#include <iostream>

#include "app/Lines.h"

namespace vantrel {

namespace {

// Qt ends the process after a fatal message. All others are about locales, plugins and folders that no picture needs.
void TellFatal(QtMsgType pType, const QMessageLogContext&, const QString& pstrText) {
  if (pType == QtFatalMsg) std::cerr << "vantrel: " << OnOneLine(pstrText.toStdString()) << std::endl;
}

}  // namespace

OffscreenApplication::OffscreenApplication()
    : mlngCount(qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ? 5 : 1),
      mBefore(qInstallMessageHandler(TellFatal)),
      mobjApplication(mlngCount, mcolArguments) {}

OffscreenApplication::~OffscreenApplication() { qInstallMessageHandler(mBefore); }

}  // namespace vantrel

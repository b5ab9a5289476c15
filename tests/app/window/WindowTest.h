// A designer window over a database of its own, and a user who answers its questions.
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "app/database/Engines.h"
#include "app/window/DesignerWindow.h"
#include "designer/Commands.h"

namespace vantrel {

class WindowTest : public testing::Test {
 protected:
  WindowTest() {
    QApplication::setOrganizationName("VantrelTest");
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mobjFolder.path());
    CreateDatabase(Address());
    Reopen();
  }

  /// Ends the program and starts it again.
  void Reopen() {
    mobjWindow.reset();
    mobjWindow = std::make_unique<DesignerWindow>(Store(), Store().List());
    mobjWindow->show();
    QApplication::processEvents();
  }

  std::string File(const char* pstrName) const { return (mobjFolder.path() + '/' + pstrName).toStdString(); }
  DatabaseAddress Address() const { return DatabaseAddress(File("test.db")); }
  WorkflowStore Store() const { return WorkflowStore(Address()); }
  FileCommands& Files() { return mobjWindow->Files(); }
  Vantrel& Control() { return mobjWindow->Designer().Control(); }

  /// The action of the command with that id.
  QAction* Action(std::string_view pstrId) {
    auto* const action = mobjWindow->findChild<QAction*>(QString::fromUtf8(pstrId.data(), static_cast<qsizetype>(pstrId.size())));
    if (!action) ADD_FAILURE() << "no action " << pstrId;
    return action;
  }

  template <class W>
  W* Part(const char* pstrName) {
    return mobjWindow->findChild<W*>(pstrName);
  }

  /// Answers the next box and records its text.
  void AnswerNext(QMessageBox::StandardButton pButton) {
    QTimer::singleShot(0, qApp, [this, pButton] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      mstrAsked = (box->text() + ' ' + box->informativeText()).toStdString();
      box->button(pButton)->click();
    });
  }

  QTemporaryDir mobjFolder;
  std::unique_ptr<DesignerWindow> mobjWindow;
  std::string mstrAsked;
};

}  // namespace vantrel

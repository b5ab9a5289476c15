#include "app/window/DesignerProgram.h"

#include <QApplication>
#include <algorithm>

#include "app/CommandLine.h"
#include "app/database/Deletion.h"
#include "app/window/ActionIcon.h"
#include "app/window/DesignerWindow.h"
#include "interchange/PnmlImport.h"
#include "qt/ChartView.h"
#include "qt/Conversions.h"

namespace vantrel {

namespace {

void NameProgram() {
  QApplication::setOrganizationName("Vantrel");
  QApplication::setApplicationName("vantrel");
  QApplication::setApplicationDisplayName("Vantrel");
  QApplication::setApplicationVersion(VANTREL_VERSION);
  QApplication::setDesktopFileName("vantrel");
  QApplication::setWindowIcon(ProgramIcon());
}

// On the command line a wrong id is a mistake to be told there; what was open last may well be gone.
void ShowFirst(DesignerWindow& pobjWindow, const DesignRequest& pobjRequest) {
  FileCommands& files = pobjWindow.Files();
  if (!pobjRequest.File.empty())
    return files.Begin(ImportPnml(pobjRequest.File, pobjRequest.FileOptions).Workflow, ToQString(pobjRequest.File));
  if (pobjRequest.Id != 0) return files.Begin(files.Store().Read(pobjRequest.Id), {});
  const std::int32_t last = pobjWindow.LastOpened();
  if (IsStored(files.Store().List(), last)) return files.Begin(files.Store().Read(last), {});
  files.New();
}

}  // namespace

int RunDesigner(const DesignRequest& pobjRequest) {
  const WorkflowStore store(pobjRequest.Database);
  static_cast<void>(store.List());  // what is wrong with the database is told before there is a window
  int count = 1;
  char name[] = "vantrel";
  char* arguments[] = {name, nullptr};
  const QApplication application(count, arguments);
  NameProgram();
  DesignerWindow window(store);
  window.show();
  ShowFirst(window, pobjRequest);
  return QApplication::exec();
}

}  // namespace vantrel

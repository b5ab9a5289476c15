#include "app/window/DesignerProgram.h"

#include <QApplication>
#include <algorithm>

#include <vantrel/version.h>

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

// On the command line a wrong id is a mistake to be told there, before there is a window. Null: nothing was asked for.
std::shared_ptr<Workflow> Wanted(const DesignRequest& pobjRequest, const WorkflowStore& pobjStore) {
  if (!pobjRequest.File.empty()) return ImportPnml(pobjRequest.File, pobjRequest.FileOptions).Workflow;
  return pobjRequest.Id != 0 ? pobjStore.Read(pobjRequest.Id) : nullptr;
}

// What was open last may well be gone, or be what brought the program down.
void ShowLast(DesignerWindow& pobjWindow, const std::vector<WorkflowListing>& pcolStored) {
  const std::int32_t last = pobjWindow.LastOpened();
  if (!IsStored(pcolStored, last) || !pobjWindow.Files().Open(last)) pobjWindow.Files().New();
}

}  // namespace

int RunDesigner(const DesignRequest& pobjRequest) {
  const WorkflowStore store(pobjRequest.Database);
  const auto stored = store.List();  // what is wrong with the database is told before there is a window, too
  const auto wanted = Wanted(pobjRequest, store);
  int count = 1;
  char name[] = "vantrel";
  char* arguments[] = {name, nullptr};
  const QApplication application(count, arguments);
  NameProgram();
  DesignerWindow window(store);
  window.show();
  if (wanted) window.Files().Begin(wanted, ToQString(pobjRequest.File));
  if (!wanted) ShowLast(window, stored);
  return QApplication::exec();
}

}  // namespace vantrel

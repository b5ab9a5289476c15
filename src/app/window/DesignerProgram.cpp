#include "app/window/DesignerProgram.h"

#include <QApplication>
#include <algorithm>
#include <stdexcept>

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

// Read before there is a window, so that a wrong id or file is reported on the command line. Null when nothing was asked for.
std::shared_ptr<Workflow> Wanted(const DesignRequest& pobjRequest, const WorkflowStore& pobjStore) {
  if (!pobjRequest.File.empty()) return ImportPnml(pobjRequest.File, pobjRequest.FileOptions).Workflow;
  return pobjRequest.Id != 0 ? pobjStore.Read(pobjRequest.Id) : nullptr;
}

// The workflow that was open last may be deleted or damaged by now: then a new one is shown.
void ShowLast(DesignerWindow& pobjWindow, const std::vector<WorkflowListing>& pcolStored) {
  const std::int32_t last = pobjWindow.LastOpened();
  if (!IsStored(pcolStored, last) || !pobjWindow.Files().Open(last)) pobjWindow.Files().New();
}

}  // namespace

int RunDesigner(const DesignRequest& pobjRequest, DisplayQuestion& pobjDisplay) {
  const WorkflowStore store(pobjRequest.Database);
  const auto stored = store.List();  // its failure is one line, as no window is open yet
  const auto wanted = Wanted(pobjRequest, store);
  if (const auto fault = pobjDisplay.WhyNot(); !fault.empty()) throw std::runtime_error(fault);
  int count = 1;
  char name[] = "vantrel";
  char* arguments[] = {name, nullptr};
  const QApplication application(count, arguments);
  NameProgram();
  DesignerWindow window(store, stored);
  window.show();
  if (wanted) window.Files().Begin(wanted, ToQString(pobjRequest.File));
  if (!wanted) ShowLast(window, stored);
  return QApplication::exec();
}

}  // namespace vantrel

// The designer's main window.
#pragma once

#include <QDockWidget>
#include <QMainWindow>

#include "app/window/ActivityWatch.h"
#include "app/window/FileCommands.h"
#include "app/window/StatusLine.h"
#include "app/window/StoredList.h"
#include "app/window/WindowMenus.h"
#include "qt/VantrelWidget.h"

namespace vantrel {

/// A chart with menus, the list of the stored workflows and a status line. Remembers its place and its layout for the next time. The
/// actions of transitions are shown in the status line; they are never executed.
class DesignerWindow final : public QMainWindow {
  Q_OBJECT

 public:
  /// `pcolStored` is what the database holds.
  DesignerWindow(const WorkflowStore& pobjStore, const std::vector<WorkflowListing>& pcolStored);
  ~DesignerWindow() override;

  FileCommands& Files() { return mobjFiles; }
  VantrelWidget& Designer() { return *mobjDesigner; }
  /// The workflow of this database that was open last, or 0.
  std::int32_t LastOpened() const;

 protected:
  void closeEvent(QCloseEvent* pobjEvent) override;
  void changeEvent(QEvent* pobjEvent) override;

 private:
  void SetUpDesigner();
  void SetUpList();
  void ConnectDesigner();
  void ShownChanged();
  void Settle();
  void ReadList();
  void TakeDrop(const std::shared_ptr<vantrel::Object>& pobjDragged);
  void OpenEmbedded(const std::shared_ptr<Transition>& pobjTransition);
  void Remember() const;
  void Restore();

  VantrelWidget* mobjDesigner;
  FileCommands mobjFiles;
  StoredList* mobjStored;
  QDockWidget* mobjDock;
  WindowMenus* mobjMenus;
  StatusLine* mobjStatus;
  ActivityWatch mobjActivity;
  Subscription mobjSaveEntry;
};

}  // namespace vantrel

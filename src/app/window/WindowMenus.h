// The window's menus and tool bar.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QToolBar>
#include <string>
#include <utility>
#include <vector>

#include "app/window/FileCommands.h"
#include "app/window/MenuActions.h"
#include "app/window/StoredList.h"

namespace vantrel {

/// Builds them for a window around a designer; everything that the designer's pop-ups offer is here, too.
class WindowMenus final : public QObject {
  Q_OBJECT

 public:
  WindowMenus(QMainWindow& pobjWindow, VantrelWidget& pobjWidget, FileCommands& pobjFiles, StoredList& pobjStored);

  /// Takes over what changed on the chart.
  void Follow();
  /// Draws the pictures in the palette's ink.
  void Paint();
  QToolBar& ToolBar() { return *mobjToolBar; }
  QMenu& ViewMenu() { return *mobjViewMenu; }

 signals:
  /// An entry of the designer's menus was chosen here.
  void Ran();

 private:
  QAction* Add(QMenu& pobjMenu, const QString& pstrText, const QKeySequence& pobjShortcut, const std::function<void()>& pRun);
  QAction* Entry(QMenu& pobjMenu, const std::string& pstrCaption, const QString& pstrText = {}, const QKeySequence& pobjShortcut = {});
  void BuildFile();
  void BuildEdit();
  void BuildInsert();
  void BuildFormat();
  void BuildView();
  void BuildHelp();
  void BuildToolBar();
  void Draw(QAction* pobjAction, const char* pstrIcon) { mcolIcons.emplace_back(pobjAction, pstrIcon); }
  void DeleteChosen();

  QMainWindow& mobjWindow;
  VantrelWidget& mobjWidget;
  FileCommands& mobjFiles;
  StoredList& mobjStored;
  MenuActions mobjEntries;
  QToolBar* mobjToolBar = nullptr;
  QMenu* mobjViewMenu = nullptr;
  QAction* mobjSave = nullptr;
  QAction* mobjText = nullptr;
  QAction* mobjWeights = nullptr;
  QAction* mobjGuards = nullptr;
  std::vector<QAction*> mcolNeedWorkflow;
  std::vector<std::pair<QAction*, std::string>> mcolIcons;
};

}  // namespace vantrel

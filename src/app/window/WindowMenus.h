// The window's menus and tool bar.
#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <QToolBar>
#include <cstddef>
#include <string_view>
#include <vector>

#include "app/window/WindowCommands.h"

namespace vantrel {

/// Makes an action of every command of the window and puts it into its menu; those with a picture are also in the tool bar. The
/// name of an action is its command's id. What the designer's pop-ups offer is here as well, enabled, checked and visible as there.
class WindowMenus final : public QObject {
  Q_OBJECT

 public:
  explicit WindowMenus(const WindowParts& pobjParts);

  /// Adopts what changed on the chart.
  void Follow();
  /// Draws the pictures in the palette's ink.
  void Paint();
  QToolBar& ToolBar() { return *mobjToolBar; }
  QMenu& ViewMenu() { return *mobjViewMenu; }

 signals:
  /// An entry of the designer's menus was chosen here.
  void Ran();

 private:
  struct Entry {
    const WindowCommand* Command;
    QAction* Action;
  };

  void BuildMenu(const WindowMenu& pobjMenu);
  void BuildToolBar(std::size_t plngFirst);
  QAction* MakeAction(const WindowCommand& pobjCommand);
  void BindKeys(QAction& pobjAction, const WindowCommand& pobjCommand);
  void Run(const WindowCommand& pobjCommand);
  void RunEntry(std::string_view pstrId);

  WindowParts mobjParts;
  QToolBar* mobjToolBar = nullptr;
  QMenu* mobjViewMenu = nullptr;
  std::vector<Entry> mcolEntries;
};

}  // namespace vantrel

// The window's commands: one table for its menus, tool bar and shortcuts.
#pragma once

#include <QMainWindow>
#include <string_view>
#include <vector>

#include "app/window/FileCommands.h"
#include "app/window/StoredList.h"

namespace vantrel {

struct WindowParts {
  QMainWindow& Window;
  VantrelWidget& Designer;
  FileCommands& Files;
  StoredList& Stored;
};

/// A line of a menu. Without Run it is the entry of the designer's own menu with this id (see CommandIds), with the keys proposed there.
/// Without an id it is a separator.
struct WindowCommand {
  std::string_view Id;
  const char* Text = "";  ///< with the mnemonic
  const char* Icon = "";  ///< in the tool bar; without one the command is not there
  const char* Keys = "";  ///< as QKeySequence::listFromString reads them
  void (*Run)(const WindowParts& pobjParts) = nullptr;
  bool (*IsEnabled)(const Vantrel& pobjControl) = nullptr;  ///< null: always
  bool (*IsChecked)(const Vantrel& pobjControl) = nullptr;  ///< null: no check mark
};

struct WindowMenu {
  const char* Title;
  std::vector<WindowCommand> Commands;
};

/// In the order of the menu bar.
const std::vector<WindowMenu>& AllWindowMenus();

}  // namespace vantrel

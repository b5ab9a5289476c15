// The commands that the control offers to users: one table for pop-ups, menus, tool bars and keys.
#pragma once

#include <span>
#include <string_view>

namespace vantrel {

class Vantrel;

/// Ids of the commands. They are never shown and never change, so that hosts and tests can find menu entries and actions by them.
namespace CommandIds {
inline constexpr std::string_view New = "new", Save = "save", Copy = "copy", Paste = "paste", Delete = "delete", SelectAll = "select-all",
                                  InsertArc = "insert-arc", InsertPlace = "insert-place", InsertTransition = "insert-transition",
                                  InsertElbow = "insert-elbow", RemoveElbow = "remove-elbow", AddNotation = "add-notation",
                                  AlignHorizontal = "align-horizontal", AlignVertical = "align-vertical", Backcolor = "backcolor",
                                  LockControls = "lock-controls", Test = "test", Properties = "properties", StartCase = "start-case",
                                  AddToken = "add-token", RemoveToken = "remove-token", StopTesting = "stop-testing",
                                  DeleteRole = "delete-role";
}  // namespace CommandIds

struct ControlCommand {
  std::string_view Id, Caption;
  /// Keys proposed to windows, in the form "Ctrl+Shift+S"; empty for none. The control itself uses only the keys of ChartInput::Key.
  std::string_view Keys;
  /// True when it can be run now.
  bool (*IsEnabled)(const Vantrel& pobjControl);
  /// Throws Errors. The control may be gone afterwards. Null for a command that the host runs.
  void (*Run)(Vantrel& pobjControl);
  /// Null for a command without a check mark.
  bool (*IsChecked)(const Vantrel& pobjControl) = nullptr;
};

[[nodiscard]] std::span<const ControlCommand> AllCommands();
/// The command with that id, or null.
[[nodiscard]] const ControlCommand* FindCommand(std::string_view pstrId);

/// Runs a command if it is enabled and shows its failure in a message box. Error 5 for an unknown id. The control may be gone afterwards.
void RunCommand(Vantrel& pobjControl, std::string_view pstrId);

}  // namespace vantrel

// The control's pop-up menus.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "designer/Vantrel.h"

namespace vantrel {

/// Builds the menus and lets their entries run the control's commands. The failure of a command is shown in a message box. Whoever
/// shows a menu shares this object meanwhile: a command may end the control, and the menus with it.
class PopupMenus {
 public:
  explicit PopupMenus(Vantrel& pobjControl);

  MenuItem& Design() { return mDesign; }
  MenuItem& Test() { return mTest; }
  MenuItem& Role() { return mRole; }
  MenuItem& Paste() { return *mPaste; }
  MenuItem& LockControls() { return *mLockControls; }
  /// "Test" of the design menu, with the separator before it.
  void ShowTestCommand(bool pblnOn);
  /// Enables the entries of the test menu for the current object.
  void EnableTestMenu();

 private:
  using Command = std::function<void(Vantrel&)>;

  void BuildDesign();
  void BuildFormat();
  void BuildTest();
  MenuItem& AddCommand(MenuItem& pobjMenu, const std::string& pstrCaption, Command pCommand);

  Ref<Vantrel> mobjControl;
  MenuItem mDesign{"Design"}, mTest{"Test"}, mRole{"Role"};
  MenuItem* mPaste = nullptr;
  MenuItem* mLockControls = nullptr;
  MenuItem* mTestSeparator = nullptr;
  MenuItem* mTestCommand = nullptr;
  std::vector<Subscription> mcolSubscriptions;
};

}  // namespace vantrel

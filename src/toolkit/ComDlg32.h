// The standard dialogs of the window system.
#pragma once

#include "toolkit/Toolkit.h"

namespace vantrel {

/// Lets the user choose a colour: for the control, and for hosts that want the same dialog. Custom colours live as long as the object.
class ComDlg32 {
 public:
  /// The toolkit must outlive the object.
  explicit ComDlg32(Toolkit& pobjToolkit) : mobjToolkit(pobjToolkit) { CustomColors.fill(kWhite); }

  Toolkit::CustomColors CustomColors;  ///< white where the user has set none

  /// The colour that the user chooses; the given one when they cancel.
  [[nodiscard]] Color SelectColor(Color plngColor) { return mobjToolkit.SelectColor(plngColor, CustomColors); }

 private:
  Toolkit& mobjToolkit;
};

}  // namespace vantrel

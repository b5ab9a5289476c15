// The toolkit of the designer on Qt.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/Toolkit.h"
#include "util/MsgBox.h"

namespace vantrel {

/// Menus, pointers and colours for a control in a window. Dialogs lie over the owner, which may be deleted while one is open. The first
/// toolkit of a process also shows message boxes as windows; a host that wants others installs its own presenter afterwards.
class QtToolkit final : public Toolkit {
 public:
  explicit QtToolkit(QWidget* pobjOwner = nullptr);
  ~QtToolkit() override;

  void ShowPopup(MenuItem& pobjMenu) override;
  void Pointer(PointerShape pShape) override;
  Color SelectColor(Color plngColor, CustomColors& pcolCustom) override;
  std::vector<std::string> FontNames() const override;

  std::function<void(PointerShape)> OnPointer;  ///< shows the pointer over the chart
  std::optional<QPoint> PopupPosition;          ///< of the next pop-up, on the screen; without it, where the mouse is

 private:
  QPointer<QWidget> mobjOwner;
  bool mblnHourglass = false;
};

/// Shows a message in a box over the active window. Closing the box answers with the harmless button.
MsgBoxAnswer ShowMessageBox(const std::string& pstrText, MsgBoxButtons pintButtons, const std::string& pstrTitle);

}  // namespace vantrel

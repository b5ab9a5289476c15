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

/// Menus, pointers and colours for a control in a window. The owner is what dialogs lie over; it may go while one is open. The
/// first toolkit of a process lets message boxes be windows, too; a host that wants others installs its own presenter later.
class QtToolkit final : public Toolkit {
 public:
  explicit QtToolkit(QWidget* pobjOwner = nullptr);
  ~QtToolkit() override;

  void ShowPopup(MenuItem& pobjMenu) override;
  void Pointer(PointerShape pShape) override;
  Color SelectColor(Color plngColor, CustomColors& pcolCustom) override;
  std::vector<std::string> FontNames() const override;

  std::function<void(PointerShape)> OnPointer;  ///< shows the pointer over the chart
  std::optional<QPoint> PopupPosition;          ///< of the next pop-up alone, on the screen; otherwise it is where the mouse is

 private:
  QPointer<QWidget> mobjOwner;
  bool mblnHourglass = false;
};

/// Shows a message in a box over the active window. Answers with the harmless button when the box is closed otherwise.
MsgBoxAnswer ShowMessageBox(const std::string& pstrText, MsgBoxButtons pintButtons, const std::string& pstrTitle);

}  // namespace vantrel

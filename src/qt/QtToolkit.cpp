#include "qt/QtToolkit.h"

#include <QApplication>
#include <QColorDialog>
#include <QCursor>
#include <QFontDatabase>
#include <QMenu>
#include <algorithm>
#include <memory>
#include <utility>

#include "qt/Conversions.h"
#include "qt/PopupMenu.h"

namespace vantrel {

namespace {

// The dialog also belongs to its owner, which may be deleted while the dialog is open.
template <class Widget>
class OwnedWidget {
 public:
  explicit OwnedWidget(Widget* pobjWidget) : mobjWidget(pobjWidget) {}
  ~OwnedWidget() { delete mobjWidget.data(); }
  OwnedWidget(const OwnedWidget&) = delete;
  OwnedWidget& operator=(const OwnedWidget&) = delete;
  Widget* operator->() const { return mobjWidget.data(); }
  explicit operator bool() const { return !mobjWidget.isNull(); }
  Widget& operator*() const { return *mobjWidget; }

 private:
  QPointer<Widget> mobjWidget;
};

}  // namespace

QtToolkit::QtToolkit(QWidget* pobjOwner) : mobjOwner(pobjOwner) { static const auto before = InstallMsgBoxPresenter(ShowMessageBox); }

QtToolkit::~QtToolkit() { Pointer(vntPointerDefault); }

void QtToolkit::ShowPopup(MenuItem& pobjMenu) {
  const OwnedWidget<QMenu> menu(new QMenu(mobjOwner));
  FillMenu(*menu, pobjMenu);
  QAction* const chosen = menu->exec(std::exchange(PopupPosition, std::nullopt).value_or(QCursor::pos()));
  if (!chosen || !menu || !chosen->data().isValid()) return;
  static_cast<MenuItem*>(chosen->data().value<void*>())->OnClick.Raise();
}

void QtToolkit::Pointer(PointerShape pShape) {
  const bool wanted = pShape == vntPointerHourglass;
  if (wanted != std::exchange(mblnHourglass, wanted)) {
    if (wanted) QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!wanted) QApplication::restoreOverrideCursor();
  }
  if (!wanted && OnPointer) OnPointer(pShape);
}

Color QtToolkit::SelectColor(Color plngColor, CustomColors& pcolCustom) {
  for (std::size_t i = 0; i < pcolCustom.size(); ++i) QColorDialog::setCustomColor(static_cast<int>(i), ToQColor(pcolCustom[i]));
  const OwnedWidget<QColorDialog> dialog(new QColorDialog(ToQColor(plngColor), mobjOwner));
  const bool isAccepted = dialog->exec() == QDialog::Accepted;
  for (std::size_t i = 0; i < pcolCustom.size(); ++i) pcolCustom[i] = ToColor(QColorDialog::customColor(static_cast<int>(i)));
  return isAccepted && dialog ? ToColor(dialog->selectedColor()) : plngColor;
}

std::vector<std::string> QtToolkit::FontNames() const {
  const QStringList families = QFontDatabase::families();
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(families.size()));
  for (const QString& family : families) names.push_back(family.toStdString());
  return names;
}

}  // namespace vantrel

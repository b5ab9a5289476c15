#include "qt/QtToolkit.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>

#include "qt/PopupMenu.h"
#include "toolkit/ComDlg32.h"
#include "toolkit/Menu.h"

namespace vantrel {
namespace {

// Runs an action on the next modal window.
template <class Act>
void WithModal(Act pAct) {
  QTimer::singleShot(20, [pAct] {
    QWidget* const modal = QApplication::activePopupWidget() ? QApplication::activePopupWidget() : QApplication::activeModalWidget();
    ASSERT_NE(modal, nullptr);
    pAct(modal);
  });
}

TEST(PopupMenu, ShowsEntriesAsTheyAreAndCollapsesSeparators) {
  MenuItem popup;
  popup.AddSeparator();
  popup.Add("Save & close").Enabled = false;
  popup.AddSeparator();
  popup.Add("Test").Visible = false;
  popup.AddSeparator();
  MenuItem& format = popup.Add("Format");
  format.Add("Lock controls").Checked = true;
  QMenu menu;
  FillMenu(menu, popup);

  const QAction* const save = menu.actions().at(1);
  EXPECT_EQ(save->text(), "Save && close");
  EXPECT_FALSE(save->isEnabled());
  const QMenu* const inner = menu.actions().back()->menu();
  ASSERT_NE(inner, nullptr);
  EXPECT_TRUE(inner->actions().front()->isChecked());
  for (const QAction* action : menu.actions()) EXPECT_NE(action->text(), "Test");
  menu.ensurePolished();
  menu.show();
  EXPECT_FALSE(menu.actions().front()->isVisible() && menu.actionGeometry(menu.actions().front()).height() > 0);
}

TEST(QtToolkit, RaisesTheChosenEntrysClickOnceThePopupIsClosed) {
  MenuItem popup;
  popup.Add("Copy");
  int clicks = 0;
  const auto clicked = popup.Add("Paste").OnClick.Connect([&clicks] {
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    ++clicks;
  });
  QtToolkit toolkit;
  WithModal([](QWidget* menu) {
    auto* const popupMenu = qobject_cast<QMenu*>(menu);
    popupMenu->setActiveAction(popupMenu->actions().back());
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(popupMenu, &enter);
  });
  toolkit.ShowPopup(popup);
  EXPECT_EQ(clicks, 1);
}

TEST(MessageBox, OffersItsButtonsAndAnswersWithTheOneChosen) {
  struct Case {
    MsgBoxButtons Buttons;
    QMessageBox::StandardButton Press;
    MsgBoxAnswer Answer;
    int Offered;
  };
  for (const auto& test : {Case{vntOKOnly, QMessageBox::Ok, vntOK, 1}, Case{vntOKCancel, QMessageBox::Cancel, vntCancel, 2},
                           Case{vntYesNo, QMessageBox::No, vntNo, 2}, Case{vntYesNoCancel, QMessageBox::Yes, vntYes, 3}}) {
    WithModal([&test](QWidget* modal) {
      auto* const box = qobject_cast<QMessageBox*>(modal);
      EXPECT_EQ(box->text(), "Delete <b>all</b>?");
      EXPECT_EQ(box->buttons().size(), test.Offered);
      box->button(test.Press)->click();
    });
    EXPECT_EQ(ShowMessageBox("Delete <b>all</b>?", test.Buttons, "Question"), test.Answer);
  }
}

TEST(MessageBox, AnswersHarmlesslyWhenTheWindowUnderItIsClosed) {
  for (const auto& [buttons, answer] : {std::pair{vntOKOnly, vntOK}, {vntYesNo, vntNo}, {vntYesNoCancel, vntCancel}}) {
    auto* const window = new QWidget;
    window->show();
    window->activateWindow();
    QApplication::processEvents();
    WithModal([window](QWidget*) { delete window; });
    // On platforms that activate no window the box has no owner, so the test closes it.
    QTimer::singleShot(200, [] {
      if (QWidget* const modal = QApplication::activeModalWidget()) modal->close();
    });
    EXPECT_EQ(ShowMessageBox("Sure?", buttons, {}), answer);
  }
}

TEST(QtToolkit, KeepsTheColourWhenTheDialogIsCancelled) {
  QtToolkit toolkit;
  WithModal([](QWidget* dialog) { dialog->close(); });
  ComDlg32 dialog(toolkit);
  dialog.CustomColors.back() = 0x445566;
  EXPECT_EQ(dialog.SelectColor(0x112233), 0x112233);
  EXPECT_EQ(dialog.CustomColors.back(), 0x445566);
}

TEST(QtToolkit, TakesTheHourglassOffAgain) {
  std::vector<PointerShape> shown;
  {
    QtToolkit toolkit;
    toolkit.OnPointer = [&shown](PointerShape shape) { shown.push_back(shape); };
    toolkit.Pointer(vntPointerHourglass);
    toolkit.Pointer(vntPointerHourglass);
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    toolkit.Pointer(vntPointerHand);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    toolkit.Pointer(vntPointerHourglass);
  }
  EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the toolkit is gone";
  EXPECT_EQ(shown.front(), vntPointerHand);
}

}  // namespace
}  // namespace vantrel

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

#include "qt/Conversions.h"
#include "qt/QtToolkit.h"

namespace vantrel {

namespace {

QMessageBox::StandardButtons ButtonsOf(MsgBoxButtons pintButtons) {
  switch (pintButtons) {
    case vntOKCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case vntYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case vntYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

MsgBoxAnswer AnswerOf(int plngButton, MsgBoxButtons pintButtons) {
  switch (plngButton) {
    case QMessageBox::Ok:
      return vntOK;
    case QMessageBox::Yes:
      return vntYes;
    case QMessageBox::No:
      return vntNo;
    default:
      return pintButtons == vntOKOnly ? vntOK : pintButtons == vntYesNo ? vntNo : vntCancel;
  }
}

}  // namespace

MsgBoxAnswer ShowMessageBox(const std::string& pstrText, MsgBoxButtons pintButtons, const std::string& pstrTitle) {
  const QString title = pstrTitle.empty() ? QGuiApplication::applicationDisplayName() : ToQString(pstrTitle);
  const auto icon = pintButtons == vntOKOnly ? QMessageBox::Information : QMessageBox::Question;
  // On the heap: closing the window under the box deletes the box.
  const QPointer<QMessageBox> box(new QMessageBox(icon, title, ToQString(pstrText), ButtonsOf(pintButtons), QApplication::activeWindow()));
  box->setTextFormat(Qt::PlainText);
  const int button = box->exec();
  const MsgBoxAnswer answer = AnswerOf(box ? button : 0, pintButtons);
  delete box.data();
  return answer;
}

}  // namespace vantrel

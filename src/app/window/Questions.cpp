#include "app/window/Questions.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace vantrel {

namespace {

QMessageBox* MakeBox(QWidget* pobjParent, QMessageBox::Icon pIcon, const QString& pstrText, const QString& pstrDetails) {
  auto* const box = new QMessageBox(pIcon, "Vantrel", pstrText, QMessageBox::NoButton, pobjParent);
  box->setTextFormat(Qt::PlainText);
  box->setInformativeText(pstrDetails);
  return box;
}

// Closing the window under the box deletes the box; the answer is Cancel then.
int Answer(QMessageBox* pobjBox) {
  const QPointer<QMessageBox> box(pobjBox);
  const int answer = box->exec();
  if (!box) return QMessageBox::Cancel;
  delete box.data();
  return answer;
}

}  // namespace

LeaveAnswer AskBeforeLeaving(QWidget* pobjParent, const QString& pstrName) {
  QMessageBox* const box =
      MakeBox(pobjParent, QMessageBox::Warning, QString("Save the changes to %1?").arg(pstrName), "What is not saved will be lost.");
  box->setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  box->setDefaultButton(QMessageBox::Save);
  switch (Answer(box)) {
    case QMessageBox::Save:
      return LeaveAnswer::Save;
    case QMessageBox::Discard:
      return LeaveAnswer::Discard;
    default:
      return LeaveAnswer::Cancel;
  }
}

bool AskWhether(QWidget* pobjParent, const QString& pstrQuestion, const QString& pstrDetails, const QString& pstrButton) {
  QMessageBox* const box = MakeBox(pobjParent, QMessageBox::Question, pstrQuestion, pstrDetails);
  box->setStandardButtons(QMessageBox::Yes | QMessageBox::Cancel);
  box->button(QMessageBox::Yes)->setText(pstrButton);
  box->setDefaultButton(QMessageBox::Cancel);
  return Answer(box) == QMessageBox::Yes;
}

void TellFailure(QWidget* pobjParent, const QString& pstrWhat, const QString& pstrWhy) {
  QMessageBox* const box = MakeBox(pobjParent, QMessageBox::Critical, pstrWhat, pstrWhy);
  box->setStandardButtons(QMessageBox::Ok);
  Answer(box);
}

}  // namespace vantrel

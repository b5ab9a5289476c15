#include "qt/InPlaceEditor.h"

#include <QFocusEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextOption>
#include <algorithm>

#include "chart/Label.h"
#include "designer/FocusFrame.h"
#include "qt/Conversions.h"
#include "qt/ViewTransform.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

constexpr int kNarrowest = 120, kFrame = 4;  // device-independent pixels
constexpr int kFewestLines = 3;              // that a box of several lines has room for

Qt::Alignment AlignmentOf(const Label& pobjLabel) {
  return pobjLabel.Alignment() == 1 ? Qt::AlignRight : pobjLabel.Alignment() == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
}

}  // namespace

InPlaceEditor::InPlaceEditor(FocusFrame& pobjFrame, QWidget* pobjViewport)
    : QObject(pobjViewport), mobjFrame(pobjFrame), mobjViewport(pobjViewport), mobjLine(new QLineEdit(pobjViewport)) {
  mobjLine->setObjectName("TextBox");
  mobjLine->setAccessibleName("Text");
  mobjLine->hide();
  mobjLine->installEventFilter(this);
}

void InPlaceEditor::MakeLines() {
  if (mobjLines) return;
  mobjLines = new QPlainTextEdit(mobjViewport);
  mobjLines->setObjectName("LinesBox");
  mobjLines->setAccessibleName("Text");
  mobjLines->setTabChangesFocus(true);
  mobjLines->hide();
  mobjLines->installEventFilter(this);
}

QWidget& InPlaceEditor::Box() const { return mblnLines ? static_cast<QWidget&>(*mobjLines) : *mobjLine; }

QString InPlaceEditor::Text() const { return mblnLines ? mobjLines->toPlainText() : mobjLine->text(); }

void InPlaceEditor::Follow(const ViewTransform& pobjTransform) {
  if (!mobjFrame.IsEditing()) return End();
  const QRect label = pobjTransform.ToView(mobjFrame.Outline()).toAlignedRect();
  if (Box().isHidden()) Begin(pobjTransform);
  const int lines = mblnLines ? kFewestLines * Box().fontMetrics().lineSpacing() + 4 * kFrame : Box().sizeHint().height();
  const int width = std::max(kNarrowest, label.width() + 2 * kFrame), height = std::max(lines, label.height());
  QRect box(label.center().x() - width / 2, label.center().y() - height / 2, width, height);
  const QRect view = mobjViewport->rect();
  if (view.intersects(label)) {  // show the whole box, which may be wider than its label
    box.moveLeft(std::max(0, std::min(box.left(), view.width() - width)));
    box.moveTop(std::max(0, std::min(box.top(), view.height() - height)));
  }
  Box().setGeometry(box);
}

// Hiding takes the focus away, which must not count as the user leaving the box.
void InPlaceEditor::End() {
  const bool hadFocus = Box().hasFocus();
  Box().hide();
  if (hadFocus) mobjViewport->setFocus();
}

void InPlaceEditor::Begin(const ViewTransform& pobjTransform) {
  mblnLines = mobjFrame.EditsLines();
  if (mblnLines) MakeLines();
  const auto* label = dynamic_cast<const Label*>(mobjFrame.SelectedControl().get());
  if (label) {
    QFont font = ToQFont(label->Font());
    font.setPointSizeF(std::max(6.0, font.pointSizeF() * pobjTransform.Zoom));
    Box().setFont(font);
  }
  const QString text = ToQString(mobjFrame.EditedText());
  if (mblnLines) {
    mobjLines->document()->setDefaultTextOption(QTextOption(label ? AlignmentOf(*label) : Qt::AlignLeft));
    mobjLines->setPlainText(text);
    mobjLines->selectAll();
  } else {
    mobjLine->setAlignment(label ? AlignmentOf(*label) : Qt::AlignLeft);
    mobjLine->setText(text);
    mobjLine->selectAll();
  }
  Box().show();
  Box().setFocus();
}

void InPlaceEditor::Commit() {
  if (mobjFrame.IsEditing()) ShowErrors([&] { mobjFrame.EndEdit(Text().toStdString()); });
}

// The view may be gone afterwards, and the box with it.
bool InPlaceEditor::TakesKey(int plngKey, Qt::KeyboardModifiers pModifiers) {
  if (plngKey == Qt::Key_Escape) {
    mobjFrame.CancelEdit();
    return true;
  }
  if (plngKey != Qt::Key_Return && plngKey != Qt::Key_Enter) return false;
  if (mblnLines && pModifiers & Qt::ShiftModifier) {
    mobjLines->insertPlainText("\n");
  } else {
    Commit();
  }
  return true;
}

bool InPlaceEditor::eventFilter(QObject* pobjWatched, QEvent* pobjEvent) {
  if (pobjWatched != &Box()) return false;
  if (pobjEvent->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*pobjEvent);
    return TakesKey(key.key(), key.modifiers());
  }
  // The box's own context menu takes the focus only for a moment.
  if (pobjEvent->type() != QEvent::FocusOut || static_cast<const QFocusEvent&>(*pobjEvent).reason() == Qt::PopupFocusReason) return false;
  const QPointer<QObject> box(pobjWatched);
  Commit();
  return box.isNull();
}

}  // namespace vantrel

#include "qt/InPlaceEditor.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <algorithm>

#include "chart/Label.h"
#include "designer/FocusFrame.h"
#include "qt/Conversions.h"
#include "qt/ViewTransform.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

constexpr int kNarrowest = 120, kFrame = 4;  // device-independent pixels

}  // namespace

InPlaceEditor::InPlaceEditor(FocusFrame& pobjFrame, QWidget* pobjViewport) : QLineEdit(pobjViewport), mobjFrame(pobjFrame) {
  setObjectName("TextBox");
  setAccessibleName("Text");
  hide();
}

void InPlaceEditor::Follow(const ViewTransform& pobjTransform) {
  if (!mobjFrame.IsEditing()) {
    // Hiding takes the focus away, which must not count as the user leaving the box.
    const bool hadFocus = hasFocus();
    hide();
    if (hadFocus) parentWidget()->setFocus();
    return;
  }
  const QRect label = pobjTransform.ToView(mobjFrame.Outline()).toAlignedRect();
  if (isHidden()) Begin(pobjTransform);
  const int width = std::max(kNarrowest, label.width() + 2 * kFrame), height = std::max(sizeHint().height(), label.height());
  QRect box(label.center().x() - width / 2, label.center().y() - height / 2, width, height);
  const QRect view = parentWidget()->rect();
  if (view.intersects(label)) {  // show the whole box, which may be wider than its label
    box.moveLeft(std::max(0, std::min(box.left(), view.width() - width)));
    box.moveTop(std::max(0, std::min(box.top(), view.height() - height)));
  }
  setGeometry(box);
}

void InPlaceEditor::Begin(const ViewTransform& pobjTransform) {
  if (const auto* label = dynamic_cast<const Label*>(mobjFrame.SelectedControl().get())) {
    QFont font = ToQFont(label->Font());
    font.setPointSizeF(std::max(6.0, font.pointSizeF() * pobjTransform.Zoom));
    setFont(font);
    setAlignment(label->Alignment() == 1 ? Qt::AlignRight : label->Alignment() == 2 ? Qt::AlignHCenter : Qt::AlignLeft);
  }
  setText(ToQString(mobjFrame.EditedText()));
  selectAll();
  show();
  setFocus();
}

void InPlaceEditor::Commit() {
  if (mobjFrame.IsEditing()) ShowErrors([&] { mobjFrame.EndEdit(text().toStdString()); });
}

void InPlaceEditor::keyPressEvent(QKeyEvent* pobjEvent) {
  switch (pobjEvent->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Commit();
    case Qt::Key_Escape:
      return mobjFrame.CancelEdit();
    default:
      return QLineEdit::keyPressEvent(pobjEvent);
  }
}

void InPlaceEditor::focusOutEvent(QFocusEvent* pobjEvent) {
  QLineEdit::focusOutEvent(pobjEvent);
  // The box's own context menu takes the focus for a moment only.
  if (pobjEvent->reason() != Qt::PopupFocusReason) Commit();
}

}  // namespace vantrel

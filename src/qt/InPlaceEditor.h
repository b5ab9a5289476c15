// The text box over a framed label.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

class QLineEdit;
class QPlainTextEdit;

namespace vantrel {

class FocusFrame;
struct ViewTransform;

/// Shows a text box while the control's FocusFrame is editing, with the label's text in the label's size. Enter and the
/// loss of the focus store the text, Escape leaves the label as it was. A text of several lines (FocusFrame::EditsLines) gets a box of
/// several lines, in which Shift+Enter breaks the line. The boxes are children of the view's viewport.
class InPlaceEditor final : public QObject {
  Q_OBJECT

 public:
  InPlaceEditor(FocusFrame& pobjFrame, QWidget* pobjViewport);

  /// Call it when the frame's editing began, moved or ended, and when the view shows another part of the chart.
  void Follow(const ViewTransform& pobjTransform);
  /// Stores the text if the user is editing one.
  void Commit();

 protected:
  bool eventFilter(QObject* pobjWatched, QEvent* pobjEvent) override;

 private:
  QWidget& Box() const;
  void Begin(const ViewTransform& pobjTransform);
  void End();
  void MakeLines();
  QString Text() const;
  bool TakesKey(int plngKey, Qt::KeyboardModifiers pModifiers);

  FocusFrame& mobjFrame;
  QWidget* mobjViewport;
  QLineEdit* mobjLine;
  QPlainTextEdit* mobjLines = nullptr;  // made when it is wanted first
  bool mblnLines = false;               // which of them serves
};

}  // namespace vantrel

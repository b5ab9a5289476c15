// The text box over a framed label.
#pragma once

#include <QLineEdit>

#include "util/Event.h"

namespace vantrel {

class FocusFrame;
struct ViewTransform;

/// Follows a control's FocusFrame: there while the frame is editing, with the label's text in the label's size. Enter and the
/// loss of the focus hand the text over, Escape leaves the label as it was. A child of the view's viewport.
class InPlaceEditor final : public QLineEdit {
 public:
  InPlaceEditor(FocusFrame& pobjFrame, QWidget* pobjViewport);

  /// The frame's editing began, moved or ended, or the view shows another part of the chart.
  void Follow(const ViewTransform& pobjTransform);
  /// Hands the text over, if the box is there.
  void Commit();

 protected:
  void keyPressEvent(QKeyEvent* pobjEvent) override;
  void focusOutEvent(QFocusEvent* pobjEvent) override;

 private:
  void Begin(const ViewTransform& pobjTransform);

  FocusFrame& mobjFrame;
};

}  // namespace vantrel

// The text box over a framed label.
#pragma once

#include <QLineEdit>

#include "util/Event.h"

namespace vantrel {

class FocusFrame;
struct ViewTransform;

/// Shown while the control's FocusFrame is editing, with the label's text in the label's size. Enter and the loss of the focus store
/// the text; Escape keeps the old one. A child of the view's viewport.
class InPlaceEditor final : public QLineEdit {
 public:
  InPlaceEditor(FocusFrame& pobjFrame, QWidget* pobjViewport);

  /// Call it when the frame's editing began, moved or ended, and when the view shows another part of the chart.
  void Follow(const ViewTransform& pobjTransform);
  /// Stores the text, if the box is shown.
  void Commit();

 protected:
  void keyPressEvent(QKeyEvent* pobjEvent) override;
  void focusOutEvent(QFocusEvent* pobjEvent) override;

 private:
  void Begin(const ViewTransform& pobjTransform);

  FocusFrame& mobjFrame;
};

}  // namespace vantrel

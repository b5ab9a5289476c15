#include "qt/VantrelWidget.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include <gtest/gtest.h>

#include "model/Transition.h"
#include "qt/ChartView.h"
#include "qt/DraggedData.h"
#include "qt/WindowEvents.h"

namespace vantrel {
namespace {

std::unique_ptr<VantrelWidget> ShownWidget() {
  auto widget = std::make_unique<VantrelWidget>();
  widget->resize(640, 480);
  widget->show();
  widget->activateWindow();
  widget->Control().NewWorkflow();
  QApplication::processEvents();
  return widget;
}

QLineEdit& TextBoxOf(VantrelWidget& pobjWidget) { return *pobjWidget.findChild<QLineEdit*>("TextBox"); }

// Puts the text box over the caption of the transition.
Transition& EditCaption(VantrelWidget& pobjWidget) {
  Transition& transition = *pobjWidget.Control().Workflow()->Transitions.First();
  transition.Caption("Check");
  pobjWidget.Control().CurrentControl(Ref<Element>(transition.CaptionLabel.get()));
  pobjWidget.Control().FocusFrame.SelectedControl(Ref<Element>(transition.CaptionLabel.get()));
  pobjWidget.Control().FocusFrame.Edit();
  return transition;
}

void Drop(QWidget& pobjCanvas, const QPointF& pobjAt, const QMimeData& pobjData) {
  QDragEnterEvent enter(pobjAt.toPoint(), Qt::CopyAction, &pobjData, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&pobjCanvas, &enter);
  QDropEvent event(pobjAt, Qt::CopyAction, &pobjData, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&pobjCanvas, &event);
}

TEST(VantrelWidget, HandsDroppedDataToItsHostInTwips) {
  const auto widget = ShownWidget();
  std::string text, url;
  float x = 0, y = 0;
  QObject::connect(widget.get(), &VantrelWidget::ObjectDragDrop, [&](const auto& object, int, int, float atX, float atY) {
    const auto data = std::dynamic_pointer_cast<DraggedData>(object);
    ASSERT_NE(data, nullptr);
    text = data->Text;
    url = data->Urls.front();
    x = atX;
    y = atY;
  });
  widget->View().Zoom(2);
  widget->Control().HScroll.Value(0);
  widget->Control().VScroll.Value(0);
  QMimeData data;
  data.setText("Prüfen");
  data.setUrls({QUrl("file:///tmp/a b")});
  Drop(*widget->View().viewport(), {400, 300}, data);
  EXPECT_EQ(text, "Prüfen");
  EXPECT_EQ(url, "file:///tmp/a%20b");
  EXPECT_EQ(x, 3000);
  EXPECT_EQ(y, 2250);
  EXPECT_EQ(widget->Control().DragObject, nullptr);
}

TEST(VantrelWidget, LeavesADragOfTheHostsOwnAlone) {
  const auto widget = ShownWidget();
  const auto own = std::make_shared<DraggedData>(QMimeData());
  widget->Control().DragObject = own;
  std::shared_ptr<Object> dropped;
  QObject::connect(widget.get(), &VantrelWidget::ObjectDragDrop, [&](const auto& object, int, int, float, float) { dropped = object; });
  QMimeData data;
  data.setText("another");
  Drop(*widget->View().viewport(), {500, 400}, data);
  EXPECT_EQ(dropped, own);
  EXPECT_EQ(widget->Control().DragObject, own);
}

TEST(VantrelWidget, EditsALabelInPlace) {
  const auto widget = ShownWidget();
  struct Case {
    int Key;
    std::string Caption;
  };
  for (const auto& test : {Case{Qt::Key_Return, "Ship"}, Case{Qt::Key_Escape, "Check"}}) {
    const Transition& transition = EditCaption(*widget);
    QLineEdit& box = TextBoxOf(*widget);
    ASSERT_TRUE(box.isVisible());
    EXPECT_EQ(box.text(), "Check");
    box.setText("Ship");
    PressKey(box, test.Key);
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(transition.Caption(), test.Caption);
  }
}

TEST(VantrelWidget, TakesTheTextWhenTheUserClicksElsewhere) {
  const auto widget = ShownWidget();
  const Transition& transition = EditCaption(*widget);
  TextBoxOf(*widget).setText("Ship");
  Click(*widget->View().viewport(), {600, 440});
  EXPECT_EQ(transition.Caption(), "Ship");
  EXPECT_FALSE(TextBoxOf(*widget).isVisible());
}

TEST(VantrelWidget, MayBeClosedWhileItsMenuIsOpen) {
  auto* const widget = ShownWidget().release();
  widget->setAttribute(Qt::WA_DeleteOnClose);
  const QPointer<VantrelWidget> alive(widget);
  widget->Control().EnablePopups = true;
  bool menuWasOpen = false;
  QTimer::singleShot(20, [&menuWasOpen, widget] {
    menuWasOpen = QApplication::activePopupWidget() != nullptr;
    delete widget;
  });
  SendMouse(*widget->View().viewport(), QEvent::MouseButtonPress, {600, 440}, Qt::RightButton);
  EXPECT_TRUE(menuWasOpen);
  EXPECT_TRUE(alive.isNull());
}

TEST(VantrelWidget, MayBeDeletedByAListenerOfItsOwn) {
  auto* const widget = ShownWidget().release();
  const QPointer<VantrelWidget> alive(widget);
  QObject::connect(widget, &VantrelWidget::Selected, widget, [widget](ModelObject&) { widget->deleteLater(); });
  Click(*widget->View().viewport(), {600, 440});
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(alive.isNull());
}

}  // namespace
}  // namespace vantrel

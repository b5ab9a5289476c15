#include "qt/ChartView.h"

#include <QElapsedTimer>
#include <QGestureEvent>
#include <QLineEdit>
#include <QNativeGestureEvent>
#include <QPaintEvent>
#include <QPinchGesture>
#include <QPointingDevice>
#include <QScrollBar>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Transition.h"
#include "qt/VantrelWidget.h"
#include "qt/WindowEvents.h"
#include "util/Error.h"
#include "util/MsgBox.h"

namespace vantrel {
namespace {

// Records what is painted again.
class PaintSpy final : public QObject {
 public:
  explicit PaintSpy(QWidget& pobjWidget) { pobjWidget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* pobjEvent) override {
    if (pobjEvent->type() == QEvent::Paint) Painted += static_cast<QPaintEvent*>(pobjEvent)->region();
    return false;
  }
  QRegion Painted;
};

class ChartViewTest : public testing::Test {
 protected:
  ChartViewTest() : mobjView(mobjWidget.View()), mobjControl(mobjWidget.Control()) {
    mobjWidget.resize(640, 480);
    mobjWidget.show();
    mobjControl.NewWorkflow();
    mobjWidget.activateWindow();
    mobjView.setFocus();
    Settle();
  }

  static void Settle() {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }
  QWidget& Canvas() const { return *mobjView.viewport(); }
  QPointF CentreOf(const Element& pobjElement) const { return mobjView.Transform().ToView(pobjElement.Bounds()).center(); }
  Transition& TheTransition() const { return *mobjControl.Workflow()->Transitions.First(); }

  VantrelWidget mobjWidget;
  ChartView& mobjView;
  Vantrel& mobjControl;
};

TEST(ViewTransform, LeadsBackToTheChartAndShiftsByWholeDevicePixels) {
  for (const double zoom : {0.1, 0.35, 1.0, 2.2, 8.0}) {
    for (const double ratio : {1.0, 1.25, 2.0}) {
      const ViewTransform transform{zoom, -1234.5F, 987.25F, ratio};
      const QPointF there = transform.ToView(4321, -77);
      EXPECT_NEAR(transform.ToChart(there).x(), 4321, 0.01);
      EXPECT_NEAR(transform.ToChart(there).y(), -77, 0.01);
      EXPECT_NEAR(transform.Shift().x() * ratio, std::round(transform.Shift().x() * ratio), 1e-9);
      EXPECT_NEAR(there.x(), (4321 + 1234.5) * zoom / 15, 1 / ratio) << zoom << " " << ratio;
    }
  }
}

TEST_F(ChartViewTest, HandsPressesOverInChartTwips) {
  for (const double zoom : {0.5, 1.0, 3.0}) {
    mobjView.Zoom(zoom);
    mobjControl.HScroll.Value(6000);
    mobjControl.VScroll.Value(-3000);
    Click(Canvas(), {300, 100});
    EXPECT_NEAR(mobjControl.CurrentX, 6000 + 300 * 15 / zoom, 15 / zoom) << zoom;
    EXPECT_NEAR(mobjControl.CurrentY, -3000 + 100 * 15 / zoom, 15 / zoom) << zoom;
  }
}

TEST_F(ChartViewTest, DragsAnObjectByTheDistanceOnTheChart) {
  mobjView.Zoom(2);
  Transition& transition = TheTransition();
  mobjView.Reveal(transition.Image->Bounds());
  const float left = transition.Left(), top = transition.Top();
  const QPointF at = CentreOf(*transition.Image);
  SendMouse(Canvas(), QEvent::MouseButtonPress, at);
  SendMouse(Canvas(), QEvent::MouseMove, at + QPointF(40, 20));
  SendMouse(Canvas(), QEvent::MouseButtonRelease, at + QPointF(40, 20));
  EXPECT_NEAR(transition.Left(), left + 300, 1);
  EXPECT_NEAR(transition.Top(), top + 150, 1);
}

TEST_F(ChartViewTest, PaintsOnlyWhatChanged) {
  PaintSpy spy(Canvas());
  TheTransition().Image->BorderStyle(1);
  Settle();
  const QRect image = mobjView.Transform().ToView(TheTransition().Image->Bounds()).toAlignedRect();
  EXPECT_TRUE(spy.Painted.boundingRect().contains(image));
  EXPECT_TRUE(image.adjusted(-8, -8, 8, 8).contains(spy.Painted.boundingRect()));

  spy.Painted = {};
  TheTransition().Image->BorderStyle(1);
  Settle();
  EXPECT_TRUE(spy.Painted.isEmpty()) << "nothing changed";
}

TEST_F(ChartViewTest, ShowsTheSameWhetherPaintedInPartsOrAtOnce) {
  mobjControl.SelectAll();
  TheTransition().MoveTo(4000, 3000);
  Settle();
  const QImage inParts = mobjWidget.grab().toImage();
  Canvas().update();
  Settle();
  EXPECT_EQ(inParts, mobjWidget.grab().toImage());
}

TEST_F(ChartViewTest, ZoomsAboutThePointer) {
  const QPointF at(123, 321);
  const QPointF before = mobjView.Transform().ToChart(at);
  TurnWheel(Canvas(), at, 3, Qt::ControlModifier);
  EXPECT_GT(mobjView.Zoom(), 1.5);
  const QPointF after = mobjView.Transform().ToChart(at);
  EXPECT_NEAR(before.x(), after.x(), 15);
  EXPECT_NEAR(before.y(), after.y(), 15);
}

TEST_F(ChartViewTest, ZoomsByPinching) {
  QNativeGestureEvent pad(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, {100, 100}, {100, 100}, {100, 100}, 0.5, {});
  QApplication::sendEvent(&Canvas(), &pad);
  EXPECT_DOUBLE_EQ(mobjView.Zoom(), 1.5);
  auto* const pinch = new QPinchGesture;
  pinch->setScaleFactor(2);
  QGestureEvent screen({pinch});
  QApplication::sendEvent(&Canvas(), &screen);
  EXPECT_DOUBLE_EQ(mobjView.Zoom(), 3);
  delete pinch;
}

TEST_F(ChartViewTest, ZoomsByKeysWithinItsLimits) {
  for (int i = 0; i < 30; ++i) PressKey(mobjView, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(mobjView.Zoom(), ChartView::kLargestZoom);
  for (int i = 0; i < 60; ++i) PressKey(mobjView, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(mobjView.Zoom(), ChartView::kSmallestZoom);
  PressKey(mobjView, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(mobjView.Zoom(), 1);
}

TEST_F(ChartViewTest, FitsEverythingIntoTheWindow) {
  TheTransition().MoveTo(60000, -20000);
  PressKey(mobjView, Qt::Key_9, Qt::ControlModifier);
  EXPECT_LT(mobjView.Zoom(), 0.5);
  EXPECT_TRUE(Canvas().rect().contains(mobjView.Transform().ToView(TheTransition().Image->Bounds()).toAlignedRect()));
  const auto place = mobjControl.Workflow()->StartPlace;
  EXPECT_TRUE(Canvas().rect().contains(mobjView.Transform().ToView(place->Image->Bounds()).toAlignedRect()));
}

TEST_F(ChartViewTest, ScrollsBothWaysAndReachesWhatLiesBelowZero) {
  mobjView.horizontalScrollBar()->setValue(1500);
  EXPECT_EQ(mobjControl.HScroll.Value(), 1500);
  mobjControl.VScroll.Value(777);
  EXPECT_EQ(mobjView.verticalScrollBar()->value(), 777);
  TheTransition().MoveTo(-90000, 400);
  EXPECT_LE(mobjView.horizontalScrollBar()->minimum(), -90000);

  mobjControl.HScroll.Value(0);
  TurnWheel(Canvas(), {10, 10}, -1, Qt::ShiftModifier);
  EXPECT_GT(mobjControl.HScroll.Value(), 0);
  EXPECT_EQ(mobjControl.VScroll.Value(), 777);
}

TEST_F(ChartViewTest, PansWithTheMiddleButtonAndWithSpace) {
  SendMouse(Canvas(), QEvent::MouseButtonPress, {200, 200}, Qt::MiddleButton);
  SendMouse(Canvas(), QEvent::MouseMove, {180, 190}, Qt::MiddleButton);
  SendMouse(Canvas(), QEvent::MouseButtonRelease, {180, 190}, Qt::MiddleButton);
  EXPECT_NEAR(mobjControl.HScroll.Value(), 300, 1);
  EXPECT_NEAR(mobjControl.VScroll.Value(), 150, 1);

  QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
  QApplication::sendEvent(&mobjView, &space);
  SendMouse(Canvas(), QEvent::MouseButtonPress, {200, 200});
  SendMouse(Canvas(), QEvent::MouseMove, {220, 210});
  EXPECT_FALSE(mobjControl.MultiSelect.Visible());
  SendMouse(Canvas(), QEvent::MouseButtonRelease, {220, 210});
  EXPECT_NEAR(mobjControl.HScroll.Value(), 0, 1);
}

TEST_F(ChartViewTest, PassesOnTheKeysOfTheChartAndNoOthers) {
  Click(Canvas(), CentreOf(*TheTransition().Image));
  const float left = TheTransition().Left();
  PressKey(mobjView, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(TheTransition().Left(), left + 15);
  QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
  QApplication::sendEvent(&mobjView, &letter);
  EXPECT_FALSE(letter.isAccepted());
}

TEST_F(ChartViewTest, TakesTheChartAlongWhenDraggedBeyondTheEdge) {
  Transition& transition = TheTransition();
  const QPointF at = CentreOf(*transition.Image), outside(Canvas().width() + 40, at.y());
  const auto scrolls = [this] {
    const float before = mobjControl.HScroll.Value();
    QElapsedTimer time;
    for (time.start(); time.elapsed() < 2000 && mobjControl.HScroll.Value() == before;) QApplication::processEvents();
    return mobjControl.HScroll.Value() > before;
  };
  SendMouse(Canvas(), QEvent::MouseButtonPress, at);
  SendMouse(Canvas(), QEvent::MouseMove, outside);
  EXPECT_TRUE(scrolls());
  SendMouse(Canvas(), QEvent::MouseButtonRelease, outside);
  EXPECT_NEAR(CentreOf(*transition.Image).x(), outside.x(), 2);

  // A gesture that ends without a release ends the scrolling as well.
  SendMouse(Canvas(), QEvent::MouseButtonPress, {300, 300});
  SendMouse(Canvas(), QEvent::MouseMove, outside);
  mobjControl.NewWorkflow();
  mobjControl.Input.Abandon();
  const float here = mobjControl.HScroll.Value();
  QElapsedTimer time;
  for (time.start(); time.elapsed() < 150;) QApplication::processEvents();
  EXPECT_EQ(mobjControl.HScroll.Value(), here);
}

TEST_F(ChartViewTest, WritesTheTextOfTheCurrentObjectWithF2) {
  auto* const box = mobjView.findChild<QLineEdit*>("TextBox");
  PressKey(mobjView, Qt::Key_F2);
  EXPECT_FALSE(box->isVisible()) << "nothing is current";
  const auto start = mobjControl.Workflow()->StartPlace;
  mobjControl.HScroll.Value(start->Left());
  mobjControl.CurrentControl(start->Image.get());
  PressKey(mobjView, Qt::Key_F2);
  ASSERT_TRUE(box->isVisible());
  EXPECT_EQ(box->text().toStdString(), start->Caption());
  EXPECT_TRUE(Canvas().rect().contains(box->geometry()));
  box->setText("Inbox");
  PressKey(*box, Qt::Key_Return);
  EXPECT_EQ(start->Caption(), "Inbox");

  mobjControl.LockControls(true);
  PressKey(mobjView, Qt::Key_F2);
  EXPECT_FALSE(box->isVisible());
}

TEST_F(ChartViewTest, TabChoosesOneObjectWhereThatIsWanted) {
  for (const bool isOn : {false, true}) {
    mobjControl.Comfort.TabChoosesOne = isOn;
    mobjControl.Selection(nullptr);
    mobjControl.CurrentControl(nullptr);
    PressKey(mobjView, Qt::Key_Tab);
    PressKey(mobjView, Qt::Key_Tab);
    EXPECT_EQ(mobjControl.Selection()->Count(), isOn ? 1 : 2);
    EXPECT_EQ(mobjControl.CurrentControl()->Tag(), "Place2");
  }
}

TEST_F(ChartViewTest, ANoteIsWrittenInSeveralLinesWhereThatIsWanted) {
  const auto note = mobjControl.AddNotation();
  note->Caption = "old";
  const auto edit = [&]() -> QWidget& {
    mobjControl.CurrentControl(note->TextControl.get());
    PressKey(mobjView, Qt::Key_F2);
    return *QApplication::focusWidget();
  };
  mobjView.activateWindow();
  PressKey(edit(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_FALSE(mobjControl.FocusFrame.IsEditing()) << "a single line ends with Enter in any case";

  mobjControl.Comfort.NotesHaveLines = true;
  QWidget& box = edit();
  EXPECT_EQ(box.objectName(), "LinesBox");
  PressKey(box, Qt::Key_M, Qt::NoModifier, "m");
  PressKey(box, Qt::Key_Return, Qt::ShiftModifier);
  PressKey(box, Qt::Key_N, Qt::NoModifier, "n");
  EXPECT_TRUE(mobjControl.FocusFrame.IsEditing());
  PressKey(box, Qt::Key_Return);
  EXPECT_FALSE(box.isVisible());
  EXPECT_EQ(note->Caption, "m\nn");
  PressKey(edit(), Qt::Key_X, Qt::NoModifier, "x");
  PressKey(box, Qt::Key_Escape);
  EXPECT_EQ(note->Caption, "m\nn");

  mobjControl.CurrentControl(mobjControl.Workflow()->StartPlace->CaptionLabel.get());
  PressKey(mobjView, Qt::Key_F2);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "TextBox") << "captions have one line";
}

TEST_F(ChartViewTest, ShowsTheErrorsOfListenersInsteadOfThrowingThemOn) {
  std::vector<std::string> shown;
  const MsgBoxScope scope([&shown](const std::string& text, MsgBoxButtons, const std::string&) {
    shown.push_back(text);
    return vntOK;
  });
  const auto refusal = mobjControl.OnSelected.Connect([](ModelObject&) { throw Error(vntErrInvalidCall, "not this one"); });
  PressKey(mobjView, Qt::Key_Tab);
  Click(Canvas(), CentreOf(*TheTransition().Image));
  EXPECT_EQ(shown, (std::vector<std::string>{"not this one", "not this one"}));
}

TEST_F(ChartViewTest, GoesFromObjectToObjectWithTab) {
  PressKey(mobjView, Qt::Key_Tab);
  const Element* const first = mobjControl.CurrentControl().get();
  ASSERT_NE(first, nullptr);
  PressKey(mobjView, Qt::Key_Tab);
  EXPECT_NE(mobjControl.CurrentControl().get(), first);
  PressKey(mobjView, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(mobjControl.CurrentControl().get(), first);
}

}  // namespace
}  // namespace vantrel

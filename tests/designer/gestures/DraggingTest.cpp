#include <limits>

#include "designer/gestures/GestureTest.h"

namespace vantrel::test {
namespace {

class Dragging : public GestureTest {};

TEST_F(Dragging, MovesAnObjectAndWhatHangsOnIt) {
  const float x2 = FirstArc()->Segments().front()->X2();
  const float left = Begin().Left(), top = Begin().Top();
  Net->Dirty(false);
  DragBy(*Begin().Image, 450, -300);
  EXPECT_EQ(Begin().Left(), left + 450);
  EXPECT_EQ(Begin().Top(), top - 300);
  EXPECT_EQ(FirstArc()->Segments().front()->X2(), x2 + 450);
  EXPECT_TRUE(Net->Dirty());
  EXPECT_FALSE(Control->FocusFrame.Visible());
}

TEST_F(Dragging, TheFrameGoesWithItsObject) {
  const float x = MiddleX(*Begin().Image), y = MiddleY(*Begin().Image);
  Press(x, y);
  Move(x + 450, y);
  Move(x + 900, y);
  EXPECT_TRUE(Control->FocusFrame.Visible());
  EXPECT_NEAR(Control->FocusFrame.Outline().Left, Begin().Image->Left(), 1);
  Release(x + 900, y);
}

TEST_F(Dragging, AClickAloneMovesAndMarksNothing) {
  Net->Dirty(false);
  const float left = Begin().Left();
  Click(*Begin().Image);
  EXPECT_EQ(Begin().Left(), left);
  EXPECT_FALSE(Net->Dirty());
}

TEST_F(Dragging, MovesTheWholeSelectionByTheSame) {
  const auto elbow = Bend();
  const auto note = Control->AddNotation();
  Select({Net->Places.Item("Place1"), Net->Transitions.Item("Transition1"), elbow, note});
  const float start = Start().Left(), begin = Begin().Left(), bend = elbow->Left(), end = End().Left();
  const auto text = note->Left();
  // Steps of less than a twip must not make the note smaller.
  const float x = MiddleX(*Start().Image), y = MiddleY(*Start().Image);
  Press(x, y);
  for (int step = 1; step <= 100; ++step) Move(x + static_cast<float>(step) * 3.4F, y);
  Release(x + 340, y);
  EXPECT_FLOAT_EQ(Start().Left(), start + 340);
  EXPECT_FLOAT_EQ(Begin().Left(), begin + 340);
  EXPECT_FLOAT_EQ(elbow->Left(), bend + 340);
  EXPECT_EQ(note->Left(), text + 340);
  EXPECT_EQ(End().Left(), end);
}

TEST_F(Dragging, WidensTheScrollRange) {
  DragBy(*Start().Image, -2000, 0);
  EXPECT_LT(Control->HScroll.Min(), Start().Left() + 1);
  EXPECT_LT(Start().Left(), -1000);
}

TEST_F(Dragging, NothingMovesWhereTheChartIsLockedOrNotDesigned) {
  const auto arc = FirstArc();
  const auto elbow = Bend();
  const auto state = [&] {
    return std::vector<float>{Begin().Left(), Begin().CaptionOffsetLeft(), static_cast<float>(Begin().InputPosition()), elbow->Left()};
  };
  const auto before = state();
  const auto dragEverything = [&] {
    DragBy(*Begin().Image, 300, 0);
    DragBy(*Begin().CaptionLabel, 300, 0);
    const auto& connector = *Begin().InConnector;
    Drag(MiddleX(connector), MiddleY(connector), MiddleX(*Begin().Image), Begin().Top());
  };
  Control->LockControls(true);
  dragEverything();
  DragBy(*elbow->Handle, 300, 0);
  EXPECT_EQ(state(), before);
  Control->LockControls(false);
  for (const auto mode : {vntTest, vntStepTest, vntRun}) {
    Control->UseMode(mode);
    dragEverything();
    EXPECT_EQ(state(), before) << Vantrel::UseModeName(mode);
  }
}

TEST_F(Dragging, ABendPointTakesBothItsSegmentsAlong) {
  const auto elbow = Bend();
  Net->Dirty(false);
  const float x = elbow->InVector()->X2(), y = elbow->InVector()->Y2();
  DragBy(*elbow->Handle, 150, 600);
  EXPECT_EQ(elbow->InVector()->X2(), x + 150);
  EXPECT_EQ(elbow->OutVector()->X1(), x + 150);
  EXPECT_EQ(elbow->OutVector()->Y1(), y + 600);
  EXPECT_TRUE(Net->Dirty());
}

struct SideCase {
  const char* What;
  float X, Y;  // from the image's top-left corner
  int Side;    // the connector's afterwards
};

TEST_F(Dragging, AConnectorGoesToTheSideThatItIsDroppedAt) {
  const float w = Begin().Image->Width(), h = Begin().Image->Height();
  const SideCase cases[] = {
      {"above the top edge", w / 2, -50, vntTop},           {"right of the right edge", w + 99, h / 2, vntRight},
      {"inside the bottom edge", w / 2, h - 99, vntBottom}, {"just outside", w / 2, -100, vntLeft},
      {"left of the left edge", -60, h / 2, vntLeft},       {"beyond a corner", w + 10, -10, vntLeft},
      {"in two zones: the upper one", 20, 20, vntTop},
  };
  for (const auto& each : cases) {
    Begin().InputPosition(vntLeft);
    const auto& connector = *Begin().InConnector;
    const auto& image = *Begin().Image;
    Drag(MiddleX(connector), MiddleY(connector), image.Left() + each.X, image.Top() + each.Y);
    EXPECT_EQ(Begin().InputPosition(), each.Side) << each.What;
    EXPECT_TRUE(connector.Bounds().Touches(image.Bounds())) << each.What << ": it snaps";
    EXPECT_EQ(Invariants(*Control).Faults(), "") << each.What << ": its arc follows";
  }
  EXPECT_EQ(Begin().OutputPosition(), vntRight);
}

TEST_F(Dragging, AConnectorFollowsTheMouseUntilEscape) {
  const auto& connector = *Begin().InConnector;
  const Rect before = connector.Bounds();
  Press(MiddleX(connector), MiddleY(connector));
  Move(MiddleX(*Begin().Image), Begin().Top());
  EXPECT_NE(connector.Bounds(), before);
  EXPECT_EQ(Tools.CurrentPointer(), vntPointerHand);
  Control->Input.Key(27, 0);
  EXPECT_EQ(connector.Bounds(), before);
  EXPECT_FALSE(Control->Input.IsCaptured());
  Release(MiddleX(*Begin().Image), Begin().Top());
  EXPECT_EQ(Begin().InputPosition(), vntLeft);
}

TEST_F(Dragging, ALabelKeepsItsPlaceBesideItsObject) {
  DragBy(*Begin().CaptionLabel, 210, 330);
  EXPECT_EQ(Begin().CaptionOffsetLeft(), Begin().CaptionLabel->Left() - Begin().Left());
  const float left = Begin().CaptionLabel->Left(), top = Begin().CaptionLabel->Top();
  Begin().Draw();
  EXPECT_EQ(Begin().CaptionLabel->Left(), left);
  EXPECT_EQ(Begin().CaptionLabel->Top(), top);
  EXPECT_EQ(Control->FocusFrame.Outline().Left, left) << "the frame follows";
}

TEST_F(Dragging, AnArcsLabelsKeepTheirPlacesBesideTheFirstSegment) {
  Net->ShowWeights = Net->ShowGuards = true;
  FirstArc()->Guard("yes");
  FirstArc()->Weight("2");
  FirstArc()->Draw();
  for (const auto& label : {FirstArc()->CaptionLabel, FirstArc()->WeightLabel}) {
    const float x = MiddleX(*label) + 600, y = MiddleY(*label) - 240;
    DragBy(*label, 600, -240);
    EXPECT_FLOAT_EQ(MiddleX(*label), x);
    EXPECT_FLOAT_EQ(MiddleY(*label), y);
    FirstArc()->Draw();
    EXPECT_FLOAT_EQ(MiddleX(*label), x) << "redrawn";
    EXPECT_FLOAT_EQ(MiddleY(*label), y) << "redrawn";
  }
}

TEST_F(Dragging, ANotesPlaceIsItsLabels) {
  Control->CurrentX = 6000;
  const auto note = Control->AddNotation();
  const auto left = note->Left(), top = note->Top();
  Net->Dirty(false);
  DragBy(*note->TextControl, 200.4F, 100);
  EXPECT_EQ(note->Left(), left + 200);
  EXPECT_EQ(note->Top(), top + 100);
  EXPECT_TRUE(Net->Dirty());
}

TEST_F(Dragging, PositionsThatAreNoneArePassedOver) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN(), infinite = std::numeric_limits<float>::infinity();
  const float x = MiddleX(*Begin().Image), y = MiddleY(*Begin().Image), left = Begin().Left();
  Press(x, y);
  Move(x + 60, y);
  Move(nan, y);
  Move(x, -infinite);
  EXPECT_EQ(Begin().Left(), left + 60);
  Release(nan, nan);
  EXPECT_FALSE(Control->Input.IsCaptured());
  EXPECT_EQ(Begin().Left(), left + 60);
  Press(infinite, y);
  EXPECT_FALSE(Control->Input.IsCaptured());
}

TEST_F(Dragging, ALostReleaseLeavesThingsWhereTheyAreAndTheNextPressBeginsAnew) {
  const float x = MiddleX(*Begin().Image), y = MiddleY(*Begin().Image), left = Begin().Left();
  Press(x, y);
  Move(x + 150, y);
  Press(x + 150, y, vntRightButton);
  EXPECT_TRUE(Control->Input.IsCaptured()) << "another button does not end a drag";
  Press(9000, 7000);
  Move(9500, 7500);
  EXPECT_EQ(Begin().Left(), left + 150);
  EXPECT_TRUE(Control->MultiSelect.Visible());
  Control->Input.Abandon();
  EXPECT_FALSE(Control->MultiSelect.Visible());
  EXPECT_FALSE(Control->Input.IsCaptured());
}

}  // namespace
}  // namespace vantrel::test

#include "designer/gestures/GestureTest.h"

namespace vantrel::test {
namespace {

class Keys : public GestureTest {};

TEST_F(Keys, ArrowsMoveTheSelectionFinelyWithShiftAlone) {
  struct Case {
    std::int16_t Code, Shift;
    float X, Y;
  };
  const Case cases[] = {{37, 0, -75, 0},       {38, 0, 0, -75},       {39, 0, 75, 0},        {40, 0, 0, 75},
                        {39, vntShift, 15, 0}, {40, vntShift, 0, 15}, {37, vntCtrl, -75, 0}, {38, vntShift | vntCtrl, 0, -75}};
  const auto note = Control->AddNotation();
  Select({Net->Places.Item("Place1"), note, FirstArc()});
  for (const Case& each : cases) {
    const float left = Start().Left(), top = Start().Top();
    const auto noteLeft = static_cast<float>(note->Left());
    Control->MultiSelect.Area({100, 100, 200, 200});
    Net->Dirty(false);
    EXPECT_TRUE(Control->Input.Key(each.Code, each.Shift));
    EXPECT_EQ(Start().Left(), left + each.X);
    EXPECT_EQ(Start().Top(), top + each.Y);
    EXPECT_EQ(static_cast<float>(note->Left()), noteLeft + each.X);
    EXPECT_EQ(Control->MultiSelect.Area(), (Rect{100 + each.X, 100 + each.Y, 200 + each.X, 200 + each.Y}));
    EXPECT_TRUE(Net->Dirty());
  }
}

TEST_F(Keys, ArrowsMoveTheCurrentControlsObjectWhereNothingIsSelected) {
  Click(*Begin().CaptionLabel);
  Control->Selection(nullptr);
  const float left = Begin().Left();
  Control->Input.Key(39, 0);
  EXPECT_EQ(Begin().Left(), left + 75);
  EXPECT_EQ(Control->FocusFrame.Outline().Left, Begin().CaptionLabel->Left());
}

TEST_F(Keys, DeleteRemovesTheSelectionAndEscapeLetsItGo) {
  Drag(100, 100, 3500, 8000);
  Control->Input.Key(27, 0);
  EXPECT_TRUE(Control->Selection()->IsEmpty());
  EXPECT_FALSE(Start().Selected());
  Control->Input.Key(46, 0);
  EXPECT_EQ(Net->Places.Count(), 2) << "nothing is selected";
  Drag(100, 100, 3500, 8000);
  Control->Input.Key(46, 0);
  EXPECT_EQ(Net->Places.Count(), 1);
  EXPECT_TRUE(Net->Transitions.IsEmpty());
  EXPECT_TRUE(Net->Arcs.IsEmpty());
}

TEST_F(Keys, OthersAreNoneOfTheChartsAndMarkNothing) {
  Click(*Begin().Image);
  Net->Dirty(false);
  for (const std::int16_t code : {8, 13, 65, 0, -1}) EXPECT_FALSE(Control->Input.Key(code, 0)) << code;
  EXPECT_FALSE(Net->Dirty());
}

TEST_F(Keys, AChartWithoutWorkflowTakesThemAll) {
  Control->Workflow(nullptr);
  for (const std::int16_t code : {27, 37, 46}) Control->Input.Key(code, 0);
  Drag(100, 100, 3500, 8000);
  EXPECT_TRUE(Messages.empty());
}

}  // namespace
}  // namespace vantrel::test

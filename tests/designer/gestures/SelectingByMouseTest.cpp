#include "designer/gestures/GestureTest.h"

namespace vantrel::test {
namespace {

class SelectingByMouse : public GestureTest {};

TEST_F(SelectingByMouse, TheBandSpansPressAndPointerWhicheverWayItIsDrawn) {
  Press(3000, 2000);
  EXPECT_FALSE(Control->MultiSelect.Visible());
  Move(1000, 2500);
  EXPECT_TRUE(Control->MultiSelect.Visible());
  EXPECT_EQ(Control->MultiSelect.Area(), (Rect{1000, 2000, 3000, 2500}));
  Release(1000, 2500);
  EXPECT_FALSE(Control->MultiSelect.Visible());
  EXPECT_EQ(Control->CurrentX, 3000);
  EXPECT_EQ(Control->CurrentY, 2000);
}

TEST_F(SelectingByMouse, TheBandTakesWhatLiesInsideAndTheNextPressLetsItGo) {
  Drag(100, 100, 3500, 8000);
  EXPECT_TRUE(Control->MultiSelectOn);
  EXPECT_TRUE(Start().Selected());
  EXPECT_TRUE(Begin().Selected());
  EXPECT_FALSE(End().Selected());
  EXPECT_EQ(Control->Selection()->Count(), 2);
  Drag(6000, 100, 7000, 200);
  EXPECT_FALSE(Control->MultiSelectOn);
  EXPECT_FALSE(Start().Selected());
  EXPECT_TRUE(Control->Selection()->IsEmpty());
}

TEST_F(SelectingByMouse, APressOnALineTakesItsArcAndDrawsNoBand) {
  const auto& line = LineOf(*FirstArc());
  Drag(MiddleX(line), MiddleY(line), 5000, 5500);
  EXPECT_TRUE(FirstArc()->Selected());
  EXPECT_EQ(Control->CurrentControl().get(), &line);
  EXPECT_FALSE(Control->MultiSelectOn);
}

TEST_F(SelectingByMouse, APressBesideEverythingSelectsTheControl) {
  Click(*Start().Image);
  ModelObject* selected = nullptr;
  const auto listening = Control->OnSelected.Connect([&](ModelObject& object) { selected = &object; });
  Click(9000, 7000);
  EXPECT_EQ(selected, Control.get());
  EXPECT_FALSE(Control->CurrentControl());
  EXPECT_FALSE(Start().Selected());
}

TEST_F(SelectingByMouse, AClickReplacesTheSelectionAndShiftAddsToIt) {
  Click(*Start().Image);
  Click(*End().Image);
  EXPECT_FALSE(Start().Selected());
  EXPECT_TRUE(End().Selected());
  Click(*Start().Image, vntLeftButton, vntShift);
  EXPECT_TRUE(Start().Selected());
  EXPECT_TRUE(End().Selected());
}

TEST_F(SelectingByMouse, AClickOnOneOfABandsObjectsKeepsThemAll) {
  Drag(100, 100, 14000, 8500);
  ASSERT_EQ(Control->Selection()->Count(), 3);
  Click(*Begin().Image);
  EXPECT_EQ(Control->Selection()->Count(), 3);
}

TEST_F(SelectingByMouse, TokenCountsAndLinesLetThePointerThrough) {
  Start().CountLabel->Caption("3");
  Start().CountLabel->MoveTo(Start().Left(), Start().Top());
  Start().CountLabel->Resize(480, 480);
  Start().CountLabel->Visible(true);
  Start().CountLabel->BringToFront();
  Click(*Start().Image);
  EXPECT_EQ(Control->CurrentControl().get(), Start().Image.get());
}

TEST_F(SelectingByMouse, TheMiddleButtonIsNoneOfTheCharts) {
  Control->CurrentX = 1;
  Press(9000, 7000, vntMiddleButton);
  EXPECT_FALSE(Control->Input.IsCaptured());
  EXPECT_EQ(Control->CurrentX, 1);
}

struct PopupCase {
  UseModeConstant Mode;
  bool Enabled;
  int OnBackground, OnPlace, OnLabel;
};

TEST_F(SelectingByMouse, PopupsShowWhereTheModeHasOne) {
  const PopupCase cases[] = {
      {vntDesign, true, 1, 1, 1}, {vntDesign, false, 0, 0, 0},  {vntTest, true, 1, 1, 1},
      {vntTest, false, 0, 1, 1},  {vntStepTest, true, 0, 0, 0}, {vntRun, true, 0, 0, 0},
  };
  for (const auto& each : cases) {
    Control->UseMode(each.Mode);
    Control->EnablePopups = each.Enabled;
    const auto shownFor = [&](auto&& act) {
      Tools.PopupsShown = 0;
      act();
      return Tools.PopupsShown;
    };
    SCOPED_TRACE(Vantrel::UseModeName(each.Mode) + (each.Enabled ? " on" : " off"));
    EXPECT_EQ(shownFor([&] { Click(9000, 7000, vntRightButton); }), each.OnBackground);
    EXPECT_EQ(shownFor([&] { Click(*Start().Image, vntRightButton); }), each.OnPlace);
    EXPECT_EQ(shownFor([&] { Click(*Start().CaptionLabel, vntRightButton); }), each.OnLabel);
  }
}

TEST_F(SelectingByMouse, ARightClickPlacesWhatIsInsertedNextBesideTheObject) {
  Control->EnablePopups = true;
  Tools.OnPopup = [](MenuItem& menu) { EXPECT_TRUE(HeadlessToolkit::Choose(menu, CommandIds::InsertPlace)); };
  std::vector<ModelObject*> clicked;
  const auto listening = Control->OnRightClick.Connect([&](ModelObject& object) { clicked.push_back(&object); });
  Click(*Begin().Image, vntRightButton);
  const auto& inserted = Net->Places.Last();
  EXPECT_EQ(inserted->Left(), Begin().Left() + Begin().Image->Width() + 300);
  EXPECT_EQ(inserted->Top(), Begin().Top() + Begin().Image->Height() + 300);
  EXPECT_EQ(Control->CurrentObject().get(), &Begin());
  Tools.OnPopup = nullptr;
  Click(9000, 8000, vntRightButton);
  EXPECT_EQ(clicked, (std::vector<ModelObject*>{&Begin(), Control.get()}));
}

TEST_F(SelectingByMouse, ReleasingAnyButtonOverAnImageHidesTheFrame) {
  for (const auto button : {vntLeftButton, vntRightButton, vntMiddleButton}) {
    Control->CurrentControl(Begin().Image.get());
    ASSERT_TRUE(Control->FocusFrame.Visible());
    Release(9000, 7000, button);
    EXPECT_TRUE(Control->FocusFrame.Visible()) << button << " beside it";
    Click(*Begin().Image, button);
    EXPECT_FALSE(Control->FocusFrame.Visible()) << button;
  }
}

TEST_F(SelectingByMouse, APopupMayDeleteWhatWasClicked) {
  Control->EnablePopups = true;
  Click(*Begin().Image);
  Tools.OnPopup = [](MenuItem& menu) { EXPECT_TRUE(HeadlessToolkit::Choose(menu, CommandIds::Delete)); };
  Click(*Begin().Image, vntRightButton);
  EXPECT_TRUE(Net->Transitions.IsEmpty());
  EXPECT_TRUE(Net->Arcs.IsEmpty());
  EXPECT_FALSE(Control->CurrentControl());
}

}  // namespace
}  // namespace vantrel::test

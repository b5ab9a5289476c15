#include "designer/gestures/GestureTest.h"

namespace vantrel::test {
namespace {

/// Each test does the same with all flags off and with its flag on.
class ComfortTest : public GestureTest {
 protected:
  ComfortTest() { Control->EnablePopups = true; }

  using Flag = bool Comfort::*;
  /// A new chart with no flag, then with the one.
  void OffAndOn(Flag pFlag, const std::function<void(bool)>& pPlay) {
    for (const bool isOn : {false, true}) {
      SCOPED_TRACE(isOn ? "on" : "off");
      Control->Comfort = {};
      Control->Comfort.*pFlag = isOn;
      Control->UseMode(vntDesign);
      Control->LockControls(false);
      Control->CurrentX = Control->CurrentY = 200;
      Net = Control->NewWorkflow();
      pPlay(isOn);
      EXPECT_EQ(Invariants(*Control).Faults(), "");
      Tools.OnPopup = nullptr;
    }
  }
  std::string Chosen() const { return KeysOf(*Control->Selection()); }
  const Element* Current() const { return Control->CurrentControl().get(); }
};

TEST_F(ComfortTest, ARightClickChoosesWhatLiesThere) {
  OffAndOn(&Comfort::RightClickChooses, [&](bool isOn) {
    Click(*Start().Image);
    Tools.OnPopup = [](MenuItem& menu) { EXPECT_TRUE(HeadlessToolkit::Choose(menu, CommandIds::Delete)); };
    Click(*Begin().Image, vntRightButton);
    EXPECT_EQ(Net->Transitions.IsEmpty(), isOn);
    EXPECT_EQ(Net->Places.Count(), isOn ? 2 : 1);
  });
  OffAndOn(&Comfort::RightClickChooses, [&](bool isOn) {
    std::string offered;
    Tools.OnPopup = [&](MenuItem&) { offered = Chosen(); };
    const auto& line = LineOf(*FirstArc());
    Click(*End().Image);
    Click(MiddleX(line), MiddleY(line), vntRightButton);
    EXPECT_EQ(offered, isOn ? line.Tag() + " " : "Place2 ") << "an arc";
    Click(*Begin().CaptionLabel, vntRightButton);
    EXPECT_EQ(offered, isOn ? "Transition1 " : "Place2 ") << "a label";
    Click(9000, 7000, vntRightButton);
    EXPECT_EQ(offered, isOn ? "" : "Place2 ") << "the background";
    Select({Net->Places.Item("Place1"), Net->Places.Item("Place2")});
    Click(*Start().Image, vntRightButton);
    EXPECT_EQ(offered, "Place1 Place2 ") << "one of several";
  });
}

TEST_F(ComfortTest, AnArcsTargetIsChosenAfterItIsDrawn) {
  OffAndOn(&Comfort::ArcTargetIsChosen, [&](bool isOn) {
    Click(*Begin().Image);
    Control->StartArcInsert();
    Click(*End().Image);
    ASSERT_EQ(Net->Arcs.Count(), 2);
    EXPECT_EQ(Current(), isOn ? End().Image.get() : Begin().Image.get());
    EXPECT_EQ(Chosen(), isOn ? "Place2 " : "");
    Click(*Start().Image);
    Control->StartArcInsert();
    Click(*End().Image);
    EXPECT_EQ(Chosen(), isOn ? "Place1 " : "") << "refused";
  });
}

TEST_F(ComfortTest, PasteLeavesTheOriginalsAndLaysTheCopiesBesideThem) {
  OffAndOn(&Comfort::PasteKeepsOriginals, [&](bool isOn) {
    const float left = Start().Left();
    Select({Net->Places.Item("Place1"), Net->Transitions.Item("Transition1")});
    Control->Copy();
    EXPECT_EQ(Chosen(), isOn ? "Place1 Transition1 " : "Place1 Transition1 Arc1 ");
    Control->Paste();
    EXPECT_EQ(Net->Places.Count(), isOn ? 3 : 2);
    EXPECT_EQ(Net->Arcs.Count(), isOn ? 2 : 1);
    EXPECT_EQ(Chosen(), isOn ? "Place3 Transition2 " : "Place3 Transition1 ");
    EXPECT_EQ(Net->Places.Last()->Left(), isOn ? left + 300 : 200);
    Control->Paste();
    EXPECT_EQ(Net->Places.Last()->Left(), isOn ? left + 600 : 200);
    Click(6000, 6000);
    Control->Paste();
    EXPECT_EQ(Net->Places.Last()->Left(), 6000) << "where the user clicked";
    Control->Paste();
    EXPECT_EQ(Net->Places.Last()->Left(), isOn ? 6300 : 6000);
  });
}

TEST_F(ComfortTest, TheLockAndTheTestModesHold) {
  const std::function<void()> restrictions[] = {[&] { Control->LockControls(true); }, [&] { Control->UseMode(vntTest); }};
  for (const auto& restrict : restrictions) {
    OffAndOn(&Comfort::LockHolds, [&](bool isOn) {
      Control->CurrentX = 9000;
      const auto spare = Control->InsertPlace();
      Bend();
      const auto elbow = Net->Elbows.First();
      const float x = MiddleX(*elbow->Handle), y = MiddleY(*elbow->Handle), bend = elbow->Left(), left = spare->Left();
      restrict();
      const bool isTest = Control->UseMode() == vntTest;
      Drag(x, y, x + 300, y);
      EXPECT_EQ(elbow->Left(), isOn || !isTest ? bend : bend + 300);
      Net->Dirty(false);
      DragBy(*spare->Image, 300, 0);
      EXPECT_EQ(spare->Left(), left);
      EXPECT_EQ(Control->Dirty(), !isOn);
      Control->CurrentControl(spare->Image.get());
      EXPECT_TRUE(Control->Input.Key(39, 0));
      EXPECT_EQ(spare->Left(), isOn ? left : left + 75);
      EXPECT_TRUE(Control->Input.Key(46, 0));
      EXPECT_EQ(Net->Places.Count(), isOn ? 3 : 2);
      EXPECT_EQ(spare->Selected(), isOn) << "what is not deleted stays chosen";
    });
  }
}

TEST_F(ComfortTest, DeleteWithNothingChosenMarksNothing) {
  OffAndOn(&Comfort::LockHolds, [&](bool isOn) {
    Click(9000, 7000);
    Net->Dirty(false);
    Control->Input.Key(46, 0);
    EXPECT_EQ(Control->Dirty(), !isOn);
  });
}

TEST_F(ComfortTest, AQuickPressEndsAnArc) {
  OffAndOn(&Comfort::QuickPressEndsArc, [&](bool isOn) {
    Click(*Begin().Image);
    Control->StartArcInsert();
    DoubleClick(MiddleX(*End().Image), MiddleY(*End().Image));
    DoubleClick(MiddleX(*Begin().Image), MiddleY(*Begin().Image));
    EXPECT_EQ(Net->Arcs.Count(), isOn || !Control->IsInsertingArc() ? 2 : 1);
    EXPECT_EQ(Control->IsInsertingArc(), false);
  });
  OffAndOn(&Comfort::QuickPressEndsArc, [&](bool isOn) {
    Control->CurrentX = 9000;
    const auto transition = Control->InsertTransition();
    Click(*Start().Image);
    Control->StartArcInsert();
    DoubleClick(MiddleX(*transition->Image), MiddleY(*transition->Image));
    EXPECT_EQ(Net->Arcs.Count(), isOn ? 2 : 1) << "a double-click on a transition means something of its own";
    Control->EndArcInsert();
  });
}

TEST_F(ComfortTest, ADragMovesAllThatIsChosenAndAClickChoosesOne) {
  OffAndOn(&Comfort::DragMovesChosen, [&](bool isOn) {
    const float end = End().Left();
    Control->SelectAll();
    DragBy(*Start().Image, 300, 0);
    EXPECT_EQ(End().Left(), isOn ? end + 300 : end);
    Control->SelectAll();
    Click(*Start().Image);
    EXPECT_EQ(Chosen(), "Place1 ");
    Drag(100, 100, 14000, 8500);
    ASSERT_EQ(Control->Selection()->Count(), 3);
    Click(*Start().Image);
    EXPECT_EQ(Control->Selection()->Count(), isOn ? 1 : 3) << "chosen by the rubber band";
  });
}

TEST_F(ComfortTest, WhatIsChosenNoMoreIsNotCurrent) {
  OffAndOn(&Comfort::ChosenIsSeen, [&](bool isOn) {
    Click(*Begin().Image);
    Control->Selection(nullptr);
    Control->Delete();
    EXPECT_EQ(Net->Transitions.Count(), isOn ? 1 : 0);
    Click(*Start().Image);
    Select({Net->Places.Item("Place2")});
    EXPECT_EQ(Current() == nullptr, isOn);
  });
}

TEST_F(ComfortTest, AnArcThatStaysChosenStaysHighlighted) {
  OffAndOn(&Comfort::ChosenIsSeen, [&](bool isOn) {
    const auto arc = FirstArc();
    Click(LineOf(*arc));
    Click(*End().Image, vntLeftButton, vntShift);
    ASSERT_TRUE(arc->Selected());
    EXPECT_EQ(arc->Segments().front()->LineWidth(), isOn ? 2 : 1);
  });
}

TEST_F(ComfortTest, BendPointsAreNotChosenAndMoveWithTheirEnds) {
  OffAndOn(&Comfort::ChosenIsSeen, [&](bool isOn) {
    const auto elbow = Bend();
    const float left = elbow->Left();
    EXPECT_EQ(KeysOf(*Control->SelectAll()), isOn ? "Transition1 Place1 Place2 " : "Transition1 Place1 Place2 Elbow1 ");
    Control->Input.Key(39, 0);
    EXPECT_EQ(elbow->Left(), left + 75);
    Drag(100, 100, 14000, 8500);
    EXPECT_EQ(Control->InSelections(elbow), !isOn);
    DragBy(*Start().Image, 300, 0);
    EXPECT_EQ(elbow->Left(), left + 375);
    Click(*Start().Image);
    Control->Selection(nullptr);
    Click(*Start().Image);
    Control->Input.Key(39, 0);
    EXPECT_EQ(elbow->Left(), left + 375) << "one end alone leaves it";
  });
}

TEST_F(ComfortTest, DeleteTakesWhatIsChosenAlsoAfterAPressOnAHandle) {
  OffAndOn(&Comfort::ChosenIsSeen, [&](bool isOn) {
    Click(*Begin().CaptionLabel);
    const Rect handle = Control->FocusFrame.Handle(2);
    Click(handle.Left + 20, handle.Top + 20);
    Control->Input.Key(46, 0);
    EXPECT_EQ(Net->Transitions.IsEmpty(), isOn);
  });
}

TEST_F(ComfortTest, WhatACommandInsertsIsChosen) {
  OffAndOn(&Comfort::ChosenIsSeen, [&](bool isOn) {
    Click(*Begin().Image);
    Control->CurrentX = 9000;
    RunCommand(*Control, CommandIds::InsertPlace);
    EXPECT_EQ(Chosen(), isOn ? "Place3 " : "Transition1 ");
    RunCommand(*Control, CommandIds::AddNotation);
    EXPECT_EQ(Chosen(), isOn ? "Notation1 " : "Transition1 ");
  });
  OffAndOn(&Comfort::ChosenIsSeen, [&](bool isOn) {
    Drag(100, 100, 1400, 8000);
    ASSERT_EQ(Chosen(), "Place1 ");
    EXPECT_EQ(Control->DesignMenu().Find(CommandIds::Copy)->Enabled, isOn) << "a single object in the rubber band is current";
  });
}

TEST_F(ComfortTest, ChosenNotesAreMarked) {
  const auto note = Control->AddNotation();
  Select({note});
  note->Draw();
  EXPECT_TRUE(note->TextControl->Marked()) << "its border says nothing, since it has one anyway";
  Control->Selection(nullptr);
  EXPECT_FALSE(note->TextControl->Marked());
}

}  // namespace
}  // namespace vantrel::test

#include "designer/DesignerTest.h"

namespace vantrel::test {

namespace {

class SelectionTest : public DesignerTest {
 protected:
  SelectionTest() {
    Control->NewWorkflow();
    Start = Net().Places.Item("Place1");
    End = Net().Places.Item("Place2");
    Begin = Net().Transitions.First();
  }
  std::string Selected() const { return KeysOf(*Control->Selection()); }

  std::shared_ptr<Place> Start, End;
  std::shared_ptr<Transition> Begin;
};

}  // namespace

TEST_F(SelectionTest, MakesAnElementCurrentByItsKind) {
  const auto arc = Net().Arcs.First();
  const auto segment = arc->Segments().front();
  std::vector<std::string> told;
  const auto listener = Control->OnSelected.Connect([&](ModelObject& object) { told.push_back(KeyOf(object)); });

  Control->CurrentControl(Start->Image.get());
  EXPECT_EQ(Selected(), "Place1 ");
  EXPECT_EQ(Control->FocusFrame.SelectedControl().get(), Start->Image.get());

  Control->CurrentControl(segment->LineControl.get());
  EXPECT_FALSE(Control->FocusFrame.Visible());
  EXPECT_EQ(segment->LineWidth(), 2);
  EXPECT_TRUE(arc->Selected());
  Control->CurrentControl(End->CaptionLabel.get());
  EXPECT_EQ(segment->LineWidth(), 1) << "the segment before loses its highlight";
  EXPECT_TRUE(Control->FocusFrame.Visible());
  EXPECT_EQ(Control->CurrentControl().get(), End->CaptionLabel.get());

  Control->CurrentControl(nullptr);
  EXPECT_FALSE(Control->FocusFrame.Visible());
  EXPECT_EQ(told, (std::vector<std::string>{"Place1", segment->Key, "Place2"}));
  EXPECT_THROW(Control->CurrentControl(&Control->ChartArea.ctlImage.Template()), Error);
}

TEST_F(SelectionTest, FramesNothingOutsideDesignMode) {
  Control->UseMode(vntTest);
  Control->CurrentControl(Start->Image.get());
  EXPECT_FALSE(Control->FocusFrame.Visible());
  EXPECT_EQ(Control->CurrentControl().get(), Start->Image.get());
  Control->CurrentControl(nullptr);
}

TEST_F(SelectionTest, AClickOnOneOfSeveralKeepsThem) {
  Select({Start, End});
  Control->CurrentControl(End->Image.get());
  EXPECT_EQ(Selected(), "Place1 Place2 ");
  Control->Selection(nullptr);
  Control->CurrentControl(Start->Image.get());
  Control->CurrentControl(Begin->Image.get());
  EXPECT_EQ(Selected(), "Place1 Transition1 ") << "so that Shift-clicks add up";
}

TEST_F(SelectionTest, MarksWhatIsSelectedAndNothingElse) {
  Select({Start, Begin});
  EXPECT_EQ(Start->Image->BorderStyle(), 1);
  const auto other = std::make_shared<ObjectCollection>();
  other->Add(End, End->Key);
  Control->Selection(other);
  EXPECT_TRUE(End->Selected());
  EXPECT_FALSE(Start->Selected() || Begin->Selected());
  Begin->Selected(true);  // by the host
  Control->Selection(nullptr);
  EXPECT_FALSE(End->Selected() || Begin->Selected());
  EXPECT_TRUE(Control->InSelections(nullptr) == false && Control->Selection()->IsEmpty());

  Control->Workflow(nullptr);
  Control->Selection(other);
  EXPECT_EQ(Selected(), "") << "nothing can be selected without a workflow";
}

TEST_F(SelectionTest, SelectsAllButArcs) {
  EXPECT_EQ(KeysOf(*Control->SelectAll()), "Transition1 Place1 Place2 ");
  Bend(*Net().Arcs.First(), 0, 400);
  Control->AddNotation();
  EXPECT_EQ(KeysOf(*Control->SelectAll()), "Transition1 Place1 Place2 Elbow1 Notation1 ");
  EXPECT_TRUE(Net().Elbows.First()->Selected());
  EXPECT_TRUE(Control->InSelections(Begin));
  Control->Selection(nullptr);
  EXPECT_FALSE(Net().Elbows.First()->Selected());
}

TEST_F(SelectionTest, TakesWhatLiesWhollyInTheRubberBand) {
  Bend(*Net().Arcs.First(), 0, 400);
  Control->CurrentX = 6000;
  const auto note = Control->AddNotation();
  const Rect image = Start->Image->Bounds();
  const auto band = [&](const Rect& area) {
    Control->MultiSelect.Area(area);
    return KeysOf(*Control->GetSelections());
  };
  EXPECT_EQ(band(image), "Place1 ") << "edges count as inside";
  EXPECT_EQ(band({image.Left + 1, image.Top, image.Right, image.Bottom}), "");
  EXPECT_EQ(band({-1000, -1000, 99'000, 99'000}), "Elbow1 Transition1 Place1 Place2 Notation1 ");
  EXPECT_EQ(band(note->TextControl->Bounds()), "Notation1 ");
}

TEST_F(SelectionTest, AlignsCentresOnTheFirstObject) {
  const auto note = Control->AddNotation();
  Bend(*Net().Arcs.First(), 0, 400);
  Select({Net().Elbows.First(), Start, note, Begin, Net().Arcs.First()});
  Control->Dirty(false);
  Control->AlignSelection("Vertical");
  EXPECT_EQ(Begin->Left(), Start->Left());
  EXPECT_EQ(static_cast<float>(note->Left()), Start->Left() + 240 - 600);
  EXPECT_EQ(Start->Left(), 500);
  EXPECT_TRUE(Control->Dirty());
  Begin->Top(2000);
  Control->AlignSelection("Horizontal");
  EXPECT_EQ(Begin->Top(), Start->Top());
  const float left = Begin->Left();
  Control->AlignSelection("vertical");
  EXPECT_EQ(Begin->Left(), left);
  Control->Dirty(false);
  Select({Net().Elbows.First()});
  Control->AlignSelection("Vertical");
  EXPECT_FALSE(Control->Dirty());
}

}  // namespace vantrel::test

#include "designer/FocusFrame.h"

#include "designer/gestures/GestureTest.h"

namespace vantrel::test {
namespace {

class Frame : public GestureTest {
 protected:
  FocusFrame& frame() const { return Control->FocusFrame; }
  Label& Framed(float width = 1000, float height = 500) {
    auto& label = *Begin().CaptionLabel;
    label.MoveTo(3000, 2000);
    label.Resize(width, height);
    frame().SelectedControl(&label);
    return label;
  }
  void DragHandle(std::int32_t handle, float x, float y) {
    const Rect grip = frame().Handle(handle);
    Drag(grip.Left + 40, grip.Top + 40, grip.Left + 40 + x, grip.Top + 40 + y);
  }
};

TEST_F(Frame, ShowsHandlesRoundLabelsAndAnOutlineRoundTheRest) {
  frame().SelectedControl(Begin().Image.get());
  EXPECT_TRUE(frame().Visible());
  EXPECT_FALSE(frame().ShowsHandles());
  EXPECT_EQ(frame().Outline(), Begin().Image->Bounds());
  const auto& label = Framed();
  EXPECT_TRUE(frame().ShowsHandles());
  EXPECT_EQ(frame().Outline(), label.Bounds());
  EXPECT_EQ(frame().Bounds(), (Rect{2910, 1910, 4090, 2590}));
  frame().SelectedControl(nullptr);
  EXPECT_FALSE(frame().Visible());
}

TEST_F(Frame, HandlesSitRoundTheLabelUnderTheirPointers) {
  struct Case {
    float Left, Top;
    PointerShape Pointer;
  };
  const Case cases[] = {{2910, 1910, vntPointerSizeNWSE}, {4000, 1910, vntPointerSizeNESW}, {4000, 2500, vntPointerSizeNWSE},
                        {2910, 2500, vntPointerSizeNESW}, {3455, 1910, vntPointerSizeNS},   {4000, 2205, vntPointerSizeWE},
                        {3455, 2500, vntPointerSizeNS},   {2910, 2205, vntPointerSizeWE}};
  Framed();
  for (std::int32_t handle = 0; handle < FocusFrame::kHandles; ++handle) {
    const Case& each = cases[handle];
    EXPECT_EQ(frame().Handle(handle), (Rect{each.Left, each.Top, each.Left + 90, each.Top + 90})) << handle;
    Move(each.Left + 45, each.Top + 45, vntNoButton);
    EXPECT_EQ(Tools.CurrentPointer(), each.Pointer) << handle;
  }
  Move(3400, 2250, vntNoButton);
  EXPECT_EQ(Tools.CurrentPointer(), vntPointerDefault);
}

TEST_F(Frame, DraggedHandlesResizeTheLabelAndItsObjectLearnsIt) {
  struct Case {
    std::int32_t Handle;
    float X, Y;
    Rect After;
  };
  const Case cases[] = {
      {0, 100, 100, {3100, 2100, 4000, 2500}}, {1, 100, -50, {3000, 1950, 4100, 2500}}, {2, 100, 50, {3000, 2000, 4100, 2550}},
      {3, -100, 50, {2900, 2000, 4000, 2550}}, {4, 100, 50, {3000, 2050, 4000, 2500}},  {5, 100, 50, {3000, 2000, 4100, 2500}},
      {6, 100, 50, {3000, 2000, 4000, 2550}},  {7, 100, 50, {3100, 2000, 4000, 2500}},  {2, -801, 0, {3000, 2000, 4000, 2500}},
      {2, 0, -301, {3000, 2000, 4000, 2500}},  {7, 801, 0, {3000, 2000, 4000, 2500}},   {5, 100, -301, {3000, 2000, 4000, 2500}},
      {6, 0, -300, {3000, 2000, 4000, 2200}},
  };
  for (const Case& each : cases) {
    const auto& label = Framed();
    std::vector<float> resized;
    const auto listening = frame().OnResized.Connect([&](float height, float width) { resized = {height, width}; });
    const Rect grip = frame().Handle(each.Handle);
    Press(grip.Left + 40, grip.Top + 40);
    Move(grip.Left + 40 + each.X, grip.Top + 40 + each.Y);
    EXPECT_EQ(label.Bounds(), each.After) << each.Handle << " by " << each.X << ", " << each.Y;
    EXPECT_EQ(frame().Outline(), each.After);
    EXPECT_TRUE(resized.empty());
    Release(grip.Left + 40 + each.X, grip.Top + 40 + each.Y);
    EXPECT_EQ(resized, (std::vector<float>{label.Height(), label.Width()}));
    EXPECT_EQ(Begin().CaptionWidth, label.Width());
    EXPECT_EQ(Begin().CaptionHeight, label.Height());
    Begin().Draw();
    EXPECT_EQ(label.Left(), each.After.Left) << "where its corner went, it stays";
  }
}

TEST_F(Frame, AOneLineLabelIsStillWidened) {
  const auto& label = Framed(1000, 195);
  DragHandle(5, 300, 0);
  EXPECT_EQ(label.Width(), 1300);
  DragHandle(6, 0, -30);
  EXPECT_EQ(label.Height(), 195);
}

TEST_F(Frame, EscapeGivesTheLabelItsSizeBack) {
  const auto& label = Framed();
  const Rect before = label.Bounds(), grip = frame().Handle(2);
  Press(grip.Left, grip.Top);
  Move(grip.Left + 500, grip.Top + 500);
  EXPECT_NE(label.Bounds(), before);
  Control->Input.Key(27, 0);
  EXPECT_EQ(label.Bounds(), before);
}

TEST_F(Frame, TheWeightLabelsSizeIsNotTheGuards) {
  Net->ShowWeights = true;
  FirstArc()->Draw();
  auto& label = *FirstArc()->WeightLabel;
  label.Resize(600, 400);
  frame().SelectedControl(&label);
  const float guard = FirstArc()->CaptionWidth();
  DragHandle(2, 150, 30);
  EXPECT_EQ(FirstArc()->WeightWidth(), 750);
  EXPECT_EQ(FirstArc()->WeightHeight(), 430);
  EXPECT_EQ(FirstArc()->CaptionWidth(), guard);
}

TEST_F(Frame, EditsTheTextThatTheLabelStandsFor) {
  Control->CurrentX = 6000;
  const auto note = Control->AddNotation();
  note->Caption = "Read me";
  note->Draw();
  Net->ShowWeights = Net->ShowGuards = true;
  FirstArc()->Guard("yes");
  FirstArc()->Draw();
  struct Case {
    Label* Edited;
    std::string Before;
    std::function<std::string()> Text;
  };
  const Case cases[] = {
      {Begin().CaptionLabel.get(), "Begin", [&] { return Begin().Caption(); }},
      {Start().CaptionLabel.get(), "Start", [&] { return Start().Caption(); }},
      {note->TextControl.get(), "Read me", [&] { return note->Caption; }},
      {FirstArc()->CaptionLabel.get(), "yes", [&] { return FirstArc()->Guard(); }},
      {FirstArc()->WeightLabel.get(), "1", [&] { return FirstArc()->Weight(); }},
  };
  for (const auto& each : cases) {
    Net->Dirty(false);
    DoubleClick(MiddleX(*each.Edited), MiddleY(*each.Edited));
    ASSERT_TRUE(frame().IsEditing()) << each.Before;
    EXPECT_EQ(frame().EditedText(), each.Before);
    frame().CancelEdit();
    EXPECT_FALSE(frame().IsEditing());
    frame().Edit();
    frame().EndEdit(each.Before);
    EXPECT_FALSE(Net->Dirty()) << "nothing new";
    frame().Edit();
    frame().EndEdit("new");
    EXPECT_EQ(each.Text(), "new");
    EXPECT_FALSE(frame().IsEditing());
    EXPECT_TRUE(Net->Dirty());
  }
  EXPECT_EQ(FirstArc()->CaptionLabel->Caption(), "[new]");
}

TEST_F(Frame, TheTextBoxGoesWithItsLabel) {
  Framed();
  frame().Edit();
  EXPECT_FALSE(Control->Input.Key(46, 0)) << "the text box's key";
  EXPECT_TRUE(Control->Input.Key(27, 0));
  EXPECT_FALSE(frame().IsEditing());
  frame().Edit();
  Press(9000, 7000);
  EXPECT_FALSE(frame().IsEditing());
  frame().EndEdit("late");
  EXPECT_EQ(Begin().Caption(), "Begin");

  auto& label = Framed();
  frame().Edit();
  Control->DeleteObject(Net->Transitions.First());
  frame().EndEdit("late");
  EXPECT_FALSE(frame().Visible());
  static_cast<void>(label);

  frame().SelectedControl(Start().Image.get());
  frame().Edit();
  EXPECT_FALSE(frame().IsEditing()) << "an image has no text";
}

TEST_F(Frame, DeleteClearsAFramedLabelAndDeletesAFramedImagesObject) {
  Framed();
  EXPECT_TRUE(frame().Key(46));
  EXPECT_EQ(Begin().Caption(), "");
  frame().SelectedControl(Begin().Image.get());
  EXPECT_TRUE(frame().Key(46));
  EXPECT_TRUE(Net->Transitions.IsEmpty());
  EXPECT_FALSE(frame().Key(39)) << "the chart's";
}

TEST_F(Frame, GoesWithALabelThatShowsNoMore) {
  FirstArc()->Guard("ready");
  const auto frameGuard = [&] {
    Control->ShowGuards(true);
    Control->CurrentControl(FirstArc()->CaptionLabel.get());
    EXPECT_TRUE(Control->FocusFrame.ShowsHandles());
  };
  frameGuard();
  Control->ShowGuards(false);
  EXPECT_FALSE(Control->FocusFrame.Visible());
  frameGuard();
  Control->FocusFrame.Edit();
  Control->FocusFrame.EndEdit("");
  EXPECT_EQ(FirstArc()->Guard(), "");
  EXPECT_FALSE(Control->FocusFrame.Visible());
  EXPECT_FALSE(Control->CurrentControl());
}

TEST_F(Frame, HasTheKeyboardFromAPressOnAHandleOn) {
  Framed();
  Control->CurrentControl(Begin().CaptionLabel.get());
  EXPECT_FALSE(frame().HasFocus());
  const Rect grip = frame().Handle(5);
  Click(grip.Left + 45, grip.Top + 45);
  EXPECT_TRUE(frame().HasFocus());
  Control->Input.Key(46, 0);
  EXPECT_EQ(Begin().Caption(), "");
  EXPECT_EQ(Net->Transitions.Count(), 1);
  Control->Input.Key(27, 0);
  EXPECT_FALSE(frame().Visible());
  EXPECT_FALSE(frame().HasFocus());
}

}  // namespace
}  // namespace vantrel::test

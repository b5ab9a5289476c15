#include <functional>
#include <string>
#include <utility>

#include "designer/gestures/GestureTest.h"

namespace vantrel::test {
namespace {

struct Grip {
  const char* Name;
  float X, Y;
};

// Every kind of drag, interrupted in every way.
class EveryDrag : public GestureTest {
 protected:
  void BuildChart() {
    Control->UseMode(vntDesign);
    Net = Control->NewWorkflow();
    Net->ShowWeights = true;
    FirstArc()->Draw();
    Control->CurrentX = 6000;
    Control->CurrentY = 6000;
    Control->AddNotation();
    Bend();
  }
  Grip GripOf(int gesture) {
    const auto at = [](const char* name, const Element& element) { return Grip{name, MiddleX(element), MiddleY(element)}; };
    switch (gesture) {
      case 0:
        return {"band", 9000, 7000};
      case 1:
        return at("image", *Begin().Image);
      case 2:
        return at("connector", *Begin().InConnector);
      case 3:
        return at("label", *Begin().CaptionLabel);
      case 4:
        return at("weight", *FirstArc()->WeightLabel);
      case 5:
        return at("note", *Net->Notations.First()->TextControl);
      case 6:
        return at("bend point", *Net->Elbows.First()->Handle);
      default: {
        Control->CurrentControl(Begin().CaptionLabel.get());
        const Rect handle = Control->FocusFrame.Handle(2);
        return {"frame", handle.Left + 30, handle.Top + 30};
      }
    }
  }
  static constexpr int kGestures = 8;
};

struct Interrupter {
  const char* Name;
  std::function<void(std::unique_ptr<Vantrel>&)> Act;
};

const std::vector<Interrupter>& Interrupters() {
  static const std::vector<Interrupter> interrupters = {
      {"deleting all",
       [](auto& control) {
         control->SelectAll();
         control->Delete();
       }},
      {"deleting by key",
       [](auto& control) {
         control->SelectAll();
         control->Input.Key(46, 0);
       }},
      {"pasting over",
       [](auto& control) {
         control->SelectAll();
         control->Copy();
         control->Paste();
       }},
      {"another workflow", [](auto& control) { control->NewWorkflow(); }},
      {"no workflow", [](auto& control) { control->Workflow(nullptr); }},
      {"another mode", [](auto& control) { control->UseMode(vntTest); }},
      {"a lock", [](auto& control) { control->LockControls(true); }},
      {"losing the mouse", [](auto& control) { control->Input.Abandon(); }},
      {"escape", [](auto& control) { control->Input.Key(27, 0); }},
      {"undoing the bend",
       [](auto& control) {
         const auto& arc = control->Workflow()->Arcs.First();
         control->CurrentControl(arc->Segments().back()->LineControl.get());
         control->RemoveElbow();
       }},
      {"closing", [](auto& control) { control.reset(); }},
  };
  return interrupters;
}

TEST_F(EveryDrag, SurvivesWhateverHappensMeanwhile) {
  for (int gesture = 0; gesture < kGestures; ++gesture) {
    for (const auto& interrupter : Interrupters()) {
      if (!Control) Control = std::make_unique<Vantrel>(Tools);
      BuildChart();
      const Grip grip = GripOf(gesture);
      SCOPED_TRACE(std::string(grip.Name) + ", " + interrupter.Name);
      Press(grip.X, grip.Y);
      EXPECT_TRUE(Control->Input.IsCaptured());
      Move(grip.X + 100, grip.Y + 60);
      interrupter.Act(Control);
      if (!Control) continue;
      Move(grip.X + 200, grip.Y + 120);
      Release(grip.X + 200, grip.Y + 120);
      EXPECT_FALSE(Control->Input.IsCaptured());
      EXPECT_FALSE(Control->MultiSelect.Visible());
      EXPECT_EQ(Invariants(*Control).Faults(), "");
      EXPECT_TRUE(Messages.empty());
      Control->LockControls(false);
    }
  }
}

// The same, interrupted by listeners to the events of a press and a move.
TEST_F(EveryDrag, SurvivesWhateverListenersDo) {
  for (int gesture = 0; gesture < kGestures; ++gesture) {
    for (const auto& interrupter : Interrupters()) {
      for (const bool onPress : {true, false}) {
        if (!Control) Control = std::make_unique<Vantrel>(Tools);
        BuildChart();
        const Grip grip = GripOf(gesture);
        SCOPED_TRACE(std::string(grip.Name) + ", " + interrupter.Name + (onPress ? " at the press" : " on the way"));
        bool acted = false;
        const auto act = [&] {
          if (std::exchange(acted, true)) return;
          interrupter.Act(Control);
        };
        Subscription selected, dirty;
        if (onPress) {
          selected = Control->OnSelected.Connect([&](ModelObject&) { act(); });
        } else {
          dirty = Control->OnDirtyChange.Connect([&](bool) { act(); });
        }
        Press(grip.X, grip.Y);
        if (Control) Move(grip.X + 100, grip.Y + 60);
        if (Control) Move(grip.X + 200, grip.Y + 120);
        if (Control) Release(grip.X + 200, grip.Y + 120);
        if (!Control) continue;
        EXPECT_EQ(Invariants(*Control).Faults(), "");
        Control->LockControls(false);
      }
    }
  }
}

}  // namespace
}  // namespace vantrel::test

#include <vector>

#include "designer/DesignerTest.h"

namespace vantrel::test {

namespace {

/// A listener that does the worst it can, once, during every operation that raises an event.
class ListenersTest : public DesignerTest {
 protected:
  using Deed = std::function<void(Vantrel&)>;

  void Prepare() {
    Control = std::make_unique<Vantrel>(Tools);
    Control->NewWorkflow();
    Control->AddNotation();
    Bend(*Net().Arcs.First(), 0, 500);
    Control->SelectAll();
    Control->Copy();
  }

  /// Runs the operation again and again, and does the deed at the first event, the second, and so on to the last.
  void RunAll(const Deed& pOperation, const Deed& pDeed) {
    for (int nth = 1;; ++nth) {
      Prepare();
      int event = 0;
      const auto act = [&] {
        if (++event == nth) pDeed(*Control);
      };
      std::vector<Subscription> listeners;
      listeners.push_back(Control->OnDirtyChange.Connect([&](bool) { act(); }));
      listeners.push_back(Control->OnSelected.Connect([&](ModelObject&) { act(); }));
      listeners.push_back(Control->OnPasted.Connect([&](const std::shared_ptr<ObjectCollection>&) { act(); }));
      listeners.push_back(Control->OnUseModeChange.Connect([&](UseModeConstant) { act(); }));
      try {
        pOperation(*Control);
      } catch (const Error&) {
      }
      if (Control) {
        EXPECT_EQ(Invariants(*Control).Faults(), "") << "event " << nth;
      }
      if (event < nth) return;
    }
  }
};

using Named = std::pair<const char*, std::function<void(Vantrel&)>>;

Ref<Element> ImageOf(const Vantrel& pobjControl) { return pobjControl.Workflow()->StartPlace->Image.get(); }
Ref<Element> LineOf(const Vantrel& pobjControl) { return pobjControl.Workflow()->Vectors.First()->LineControl.get(); }

const std::vector<Named>& Operations() {
  static const std::vector<Named> operations = {
      {"Workflow", [](Vantrel& control) { control.Workflow(std::make_shared<Workflow>()); }},
      {"no Workflow", [](Vantrel& control) { control.Workflow(nullptr); }},
      {"NewWorkflow", [](Vantrel& control) { control.NewWorkflow(); }},
      {"UseMode", [](Vantrel& control) { control.UseMode(vntTest); }},
      {"ShowGuards", [](Vantrel& control) { control.ShowGuards(true); }},
      {"BackColor", [](Vantrel& control) { control.BackColor(0x445566); }},
      {"SetProperty", [](Vantrel& control) { control.SetProperty("StartPlace", "EndPlace"); }},
      {"image", [](Vantrel& control) { control.CurrentControl(ImageOf(control)); }},
      {"line", [](Vantrel& control) { control.CurrentControl(LineOf(control)); }},
      {"InsertPlace", [](Vantrel& control) { control.InsertPlace(); }},
      {"InsertTransition", [](Vantrel& control) { control.InsertTransition(); }},
      {"InsertArc",
       [](Vantrel& control) { control.InsertArc(control.Workflow()->Transitions.First(), control.Workflow()->Places.Last()); }},
      {"AddNotation", [](Vantrel& control) { control.AddNotation(); }},
      {"Delete", [](Vantrel& control) { control.Delete(); }},
      {"DeleteObject", [](Vantrel& control) { control.DeleteObject(control.Workflow()->StartPlace.Lock()); }},
      {"Paste", [](Vantrel& control) { control.Paste(); }},
      {"AlignSelection", [](Vantrel& control) { control.AlignSelection("Vertical"); }},
      {"Reset", [](Vantrel& control) { control.Reset(); }},
  };
  return operations;
}

}  // namespace

TEST_F(ListenersTest, MayDoAnythingInTheMiddleOfAnything) {
  std::vector<Named> deeds = Operations();
  deeds.emplace_back("the end of the control", [this](Vantrel&) { Control.reset(); });
  deeds.emplace_back("deleting all", [](Vantrel& control) {
    control.SelectAll();
    control.Delete();
  });
  deeds.emplace_back("letting go of the clipboard", [](Vantrel& control) { control.Clipboard = nullptr; });
  for (const auto& [operationName, operation] : Operations()) {
    for (const auto& [deedName, deed] : deeds) {
      SCOPED_TRACE(std::string(deedName) + " while " + operationName);
      RunAll(operation, deed);
    }
  }
}

TEST_F(ListenersTest, MayDoAnythingWhileABendPointComesOrGoes) {
  for (const bool removes : {false, true}) {
    for (const auto& [deedName, deed] : Operations()) {
      SCOPED_TRACE(deedName);
      RunAll(
          [removes](Vantrel& control) {
            control.CurrentControl(LineOf(control));
            removes ? control.RemoveElbow() : control.InsertElbow();
          },
          deed);
    }
  }
}

TEST_F(ListenersTest, MayOpenAnotherControlInTheMiddleOfAnything) {
  std::unique_ptr<Vantrel> other;
  const auto open = [&](Vantrel&) {
    other = std::make_unique<Vantrel>(Tools);
    other->UseMode(vntRun);
  };
  for (const auto& [name, operation] : Operations()) {
    SCOPED_TRACE(name);
    const auto andLook = [&, operation = operation](Vantrel& control) {
      other = nullptr;
      operation(control);
      if (!other) return;
      EXPECT_EQ(Invariants(*other).Faults(), "") << "nothing of the one's on the other's chart";
      EXPECT_EQ(other->UseMode(), vntRun);
      EXPECT_EQ(gintUseMode, vntRun) << "the newest one's state is the process-wide one";
    };
    RunAll(andLook, open);
  }
}

TEST_F(ListenersTest, SeeTheChartAsItIsWhenObjectsArePasted) {
  Prepare();
  const auto listener = Control->OnPasted.Connect([&](const std::shared_ptr<ObjectCollection>& objects) {
    EXPECT_EQ(Invariants(*Control).Faults(), "");
    EXPECT_EQ(objects, Control->Selection());
    Control->Delete();
  });
  Control->Selection(nullptr);
  Control->Paste();
  EXPECT_EQ(Net().Places.Count(), 2);
}

}  // namespace vantrel::test

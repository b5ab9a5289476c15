#include <algorithm>

#include "designer/DesignerTest.h"

namespace vantrel::test {

namespace {

class ClipboardTest : public DesignerTest {
 protected:
  ClipboardTest() { Control->NewWorkflow(); }

  void Click(float psngX, float psngY) {  // on the background
    Control->CurrentControl(nullptr);
    Control->Selection(nullptr);
    Control->CurrentX = psngX;
    Control->CurrentY = psngY;
  }
  /// Copies start place, transition and the arc between them, bent in a known way; returns the bend point.
  void CopyBent() {
    const auto elbow = Bend(*Net().Arcs.First(), 0, 700);
    const auto start = Net().StartPlace;
    mBendX = elbow->Left() - start->Left();
    mBendY = elbow->Top() - start->Top();
    Control->CurrentControl(nullptr);
    Select({start.Lock(), Net().Transitions.First()});
    Control->Copy();
  }
  /// Checks that the bend points of the workflow's last arc are where they were before copying, relative to its place.
  void ExpectBent() {
    const auto arc = Net().Arcs.Last();
    const auto bends = arc->BendPoints();
    ASSERT_EQ(bends.size(), 1U);
    EXPECT_NEAR(bends[0]->Left() - arc->Place->Left(), mBendX, 1);
    EXPECT_NEAR(bends[0]->Top() - arc->Place->Top(), mBendY, 1);
    EXPECT_EQ(arc->Guard(), "ready");
  }

 private:
  float mBendX = 0, mBendY = 0;
};

}  // namespace

TEST_F(ClipboardTest, CopiesArcsBetweenSelectedObjectsIntoTheSelectionItself) {
  const auto end = Net().Places.Last();
  Control->InsertArc(Net().Transitions.First(), end);
  Select({Net().Places.First(), end, Net().Transitions.First()});
  Control->Copy();
  Control->Copy();
  EXPECT_EQ(KeysOf(*Control->Clipboard), "Place1 Place2 Transition1 Arc1 Arc2 ");
  EXPECT_EQ(Control->Clipboard, Control->Selection());
  Control->DeleteObject(Net().Arcs.First());
  EXPECT_EQ(KeysOf(*Control->Selection()), "Place1 Place2 Transition1 Arc2 ");
  EXPECT_EQ(Control->Clipboard->Count(), 5) << "what is deleted stays on the clipboard";
  Select({Net().Places.First()});
  Control->Copy();
  EXPECT_EQ(KeysOf(*Control->Clipboard), "Place1 ");
  Control->Selection(nullptr);
  Control->Copy();
  EXPECT_TRUE(Control->Clipboard->IsEmpty());
  EXPECT_FALSE(Control->DesignMenu().Find(CommandIds::Paste)->Enabled);
}

TEST_F(ClipboardTest, PastesTheGroupAtTheCurrentPosition) {
  std::string pasted;
  const auto listener = Control->OnPasted.Connect([&](const std::shared_ptr<ObjectCollection>& objects) { pasted = KeysOf(*objects); });
  Control->CurrentX = 3000;
  Control->CurrentY = 100;
  Control->AddNotation()->Caption = "remember";
  Control->SelectAll();
  Control->Copy();
  Click(200, 5000);
  Control->Paste();
  EXPECT_EQ(pasted, "Transition2 Place3 Place4 Notation2 ");
  EXPECT_EQ(KeysOf(*Control->Selection()), pasted);
  const auto place = Net().Places.Item("Place3");
  const auto note = Net().Notations.Last();
  EXPECT_EQ(place->Left(), 200);
  EXPECT_EQ(note->Top(), 5000);
  EXPECT_EQ(place->Top() - static_cast<float>(note->Top()), Net().Places.First()->Top() - 100);
  EXPECT_EQ(note->Caption, "remember");
  EXPECT_EQ(place->Name() + " " + Net().Transitions.Last()->Name(), "Place Transition") << "the names were taken";
  EXPECT_EQ(place->Caption(), "Start");
  EXPECT_TRUE(place->Image->Visible() && note->TextControl->Visible() && place->Selected());
  EXPECT_EQ(Net().Arcs.Count(), 2);
  EXPECT_TRUE(Net().Dirty());
}

TEST_F(ClipboardTest, CopyAndPasteAtOnceReplacesTheCopiedObjects) {
  Net().Arcs.First()->Guard("ready");
  CopyBent();
  Control->Paste();
  EXPECT_EQ(Net().Places.Count(), 2);
  EXPECT_EQ(Net().Transitions.First()->Name(), "Begin");
  EXPECT_EQ(Net().Arcs.Count(), 1);
  EXPECT_FALSE(Net().StartPlace);
  ExpectBent();
}

TEST_F(ClipboardTest, PastesPathsWhateverBecameOfTheOriginals) {
  const std::pair<const char*, std::function<void()>> fates[] = {
      {"they stay", [] {}},
      {"they are deleted", [&] { Control->SelectAll(), Control->Delete(); }},
      {"the arc is deleted", [&] { Control->DeleteObject(Net().Arcs.First()); }},
      {"the chart is cleared", [&] { Control->Workflow(nullptr); }},
      {"another workflow is shown", [&] { Control->NewWorkflow(); }},
      {"they moved",
       [&] {
         Net().StartPlace->MoveTo(3000, 3000), Net().Elbows.First()->Left(Net().Elbows.First()->Left() + 2500),
             Net().Elbows.First()->Top(Net().Elbows.First()->Top() + 3000 - 200);
       }},
  };
  for (const auto& [what, fate] : fates) {
    SCOPED_TRACE(what);
    Control->NewWorkflow();
    Net().Arcs.First()->Guard("ready");
    const Ref<Workflow> copiedFrom(Control->Workflow());
    CopyBent();
    fate();
    Click(4000, 7000);
    Control->Paste();
    if (!copiedFrom) {
      EXPECT_NE(Control->Workflow(), nullptr);
    }
    ExpectBent();
    Click(4500, 8000);
    Control->Paste();
    ExpectBent();
    EXPECT_EQ(Invariants(*Control).Faults(), "");
  }
}

TEST_F(ClipboardTest, PastesIntoAnotherControlAndWithoutWorkflow) {
  Control->SelectAll();
  Control->Copy();
  Vantrel other(Tools);
  other.Clipboard = Control->Clipboard;
  Control->Workflow(nullptr);
  other.Paste();
  ASSERT_NE(other.Workflow(), nullptr);
  EXPECT_EQ(other.Workflow()->Places.Count(), 2);
  EXPECT_EQ(other.Workflow()->Transitions.First()->Name(), "Begin");
  EXPECT_EQ(Invariants(other).Faults(), "");
}

TEST_F(ClipboardTest, NamesWithNumbersBeyondTheRangeAreNamesLikeAnyOther) {
  Net().Places.First()->AssignName("Place20230101120000");
  Net().Transitions.First()->AssignName("Transition99999999999");
  Control->SelectAll();
  Control->Copy();
  Control->Paste();
  EXPECT_EQ(Net().Places.First()->Name() + " " + Net().Places.Last()->Name(), "Place20230101120000 EndPlace");
  Click(200, 5000);
  Control->Paste();
  EXPECT_EQ(Net().Places.Item(3)->Name() + " " + Net().Transitions.Last()->Name(), "Place Transition");
  EXPECT_EQ(Control->InsertPlace()->Name(), "Place2");
}

TEST_F(ClipboardTest, DeletesNothingForWhatItCannotPaste) {
  static const ImageList kNoPictures;
  const auto* pictures = Control->ImageList;
  const std::pair<const char*, std::function<void()>> obstacles[] = {
      {"an unknown picture", [&] { Net().Places.Last()->DisabledImageKey = "Bucket"; }},
      {"no pictures at all", [&] { Control->ImageList = &kNoPictures; }},
      {"no more names", [&] { Net().Places.Last()->AssignName("Place2147483647"); }},
      {"no more keys",
       [&] {
         const auto place = std::make_shared<Place>();
         place->Key = "Place2147483647";
         Control->BindPlace(*place);
         Control->Workflow()->Places.Add(place, place->Key);
       }},
  };
  for (const auto& [what, obstruct] : obstacles) {
    SCOPED_TRACE(what);
    Control->NewWorkflow();
    obstruct();
    Select({Net().Places.Item("Place2"), Net().Transitions.First()});
    Control->Copy();
    Select({Net().Places.First()});
    const auto count = Net().Places.Count();
    EXPECT_THROW(Control->Paste(), Error);
    EXPECT_EQ(Net().Places.Count(), count);
    EXPECT_EQ(KeysOf(*Control->Selection()), "Place1 ");
    Control->ImageList = pictures;
  }
}

TEST_F(ClipboardTest, PastesNoArcWithoutItsEnds) {
  const auto arc = Net().Arcs.First();
  Select({arc, Net().Vectors.First(), Net().StartPlace.Lock()});
  Control->Copy();
  Click(100, 3000);
  Control->Paste();
  EXPECT_EQ(Net().Places.Count(), 3);
  EXPECT_EQ(Net().Arcs.Count(), 1);
}

TEST_F(ClipboardTest, PastesNothingFromNothing) {
  Control->SelectAll();
  Control->Clipboard = nullptr;
  Control->Paste();
  EXPECT_EQ(Net().Places.Count(), 2) << "nothing is deleted either";
}

TEST_F(ClipboardTest, GivesManyCopiesNamesOfTheirOwn) {
  for (int i = 0; i < 20; ++i) PlaceAt(static_cast<float>(i) * 600, 3000);
  Control->SelectAll();
  Control->Copy();
  for (int i = 0; i < 3; ++i) {
    Click(0, 5000);
    Control->Paste();
  }
  std::set<std::string> names;
  for (const auto& place : Net().Places) names.insert(place->Name());
  EXPECT_EQ(names.size(), static_cast<std::size_t>(Net().Places.Count()));
  EXPECT_EQ(Net().Places.Count(), 88);
}

}  // namespace vantrel::test

#include <set>
#include <tuple>

#include "designer/DesignerTest.h"
#include "persistence/Databases.h"
#include "persistence/WholeSave.h"

namespace vantrel::test {

namespace {

class StoredChart : public DesignerTest {
 protected:
  /// A chart on which every object was moved from its default position.
  std::shared_ptr<Workflow> Build() {
    const auto net = Control->NewWorkflow();
    Control->InsertArc(net->Transitions.First(), net->Places.Last());
    const auto arc = net->Arcs.First();
    Bend(*arc, 40, 900);
    Bend(*arc, -60, -350);  // the first half again: the workflow's order is not the chain's
    Bend(*arc, 25, 1200);
    Control->CurrentControl(nullptr);
    arc->Guard("amount > 5");
    arc->Weight("2");
    arc->CaptionOffsetX(130);
    arc->WeightOffsetY(-220);
    Control->ShowGuards(true);
    Control->ShowWeights(true);
    const auto begin = net->Transitions.First();
    begin->InputPosition(vntTop);
    begin->OutputPosition(vntBottom);
    begin->CaptionOffsetLeft(-310);
    begin->CaptionOffsetTop(700);
    Control->CurrentX = 5000;  // on no bend point
    Control->AddNotation()->Caption = "see the manual";
    Control->Selection(nullptr);
    Control->Refresh();
    return net;
  }
  /// The position and text of every visible element.
  std::string Picture() const {
    std::multiset<std::string> lines;
    for (const Element* element : Control->ChartArea.ElementsIn({-1e6F, -1e6F, 1e6F, 1e6F})) {
      const Rect box = element->Bounds();
      const auto* label = dynamic_cast<const Label*>(element);
      lines.insert(::testing::PrintToString(std::tuple(static_cast<int>(element->Family()), box.Left, box.Top, box.Right, box.Bottom,
                                                       label ? label->Caption() : std::string())));
    }
    std::string picture;
    for (const auto& line : lines) picture += line + "\n";
    return picture;
  }

  SqliteStore Store;
};

}  // namespace

TEST_F(StoredChart, ShowsAsItWasAndCanBeEditedOn) {
  auto net = Build();
  const std::string before = Picture();
  VNTRDB database;
  database.Connection = Store.Connect();
  SaveWhole(database.Connection, net);
  const auto id = net->RecId;
  net = nullptr;
  Control->Workflow(nullptr);

  const auto stored = database.ReadWorkflow(id);
  EXPECT_EQ(Control->ChartArea.ctlLine.Count() + Control->ChartArea.ctlHandle.Count(), 2) << "reading leaves nothing on the chart";
  Control->Workflow(stored);
  EXPECT_EQ(Picture(), before);
  EXPECT_EQ(Invariants(*Control).Faults(), "");
  EXPECT_FALSE(Control->Dirty());
  ASSERT_EQ(stored->Elbows.Count(), 3);

  const auto arc = stored->Elbows.First()->InVector()->Arc();
  Control->CurrentControl(arc->Segments().front()->LineControl.get());
  for (const auto& elbow : stored->Elbows) {
    const Rect handle = elbow->Handle->Bounds();
    ASSERT_TRUE(elbow->Handle->Visible()) << elbow->Key;
    const float x = (handle.Left + handle.Right) / 2, y = (handle.Top + handle.Bottom) / 2;
    Control->Input.Press({x, y, vntLeftButton, vntNoShift});
    Control->Input.Move({x + 150, y + 75, vntLeftButton, vntNoShift});
    Control->Input.Release({x + 150, y + 75, vntLeftButton, vntNoShift});
    EXPECT_EQ(elbow->Left(), handle.Left + 150) << elbow->Key;
    EXPECT_EQ(elbow->Top(), handle.Top + 75) << elbow->Key;
    EXPECT_EQ(Invariants(*Control).Faults(), "");
  }
  Control->CurrentControl(arc->Segments().front()->LineControl.get());
  Control->RemoveElbow();
  EXPECT_EQ(stored->Elbows.Count(), 2);
}

}  // namespace vantrel::test

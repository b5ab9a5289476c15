#include <cmath>

#include "designer/DesignerTest.h"
#include "designer/Dialogs.h"
#include "model/DesignerCall.h"

namespace vantrel::test {

namespace {

/// Two controls side by side. The second one is the newer: its state is the current one between two calls.
class TwoControls : public DesignerTest {
 protected:
  TwoControls() : Second(std::make_unique<Vantrel>(Tools)) {
    Control->NewWorkflow();
    Second->NewWorkflow();
  }
  void TearDown() override {
    EXPECT_EQ(Invariants(*Second).Faults(), "");
    DesignerTest::TearDown();
  }

  Arc& FirstArc() const { return *Net().Arcs.First(); }
  static Ref<Element> StartImage(const Vantrel& pobjControl) { return pobjControl.Workflow()->StartPlace->Image.get(); }

  std::unique_ptr<Vantrel> Second;
};

}  // namespace

TEST_F(TwoControls, GiveElementsToObjectsOfTheirOwnWorkflows) {
  FirstArc().InsertVector(ShareOf(*FirstArc().Segments().front()));
  EXPECT_EQ(FirstArc().BendPoints().front()->Handle->Surface(), &Control->ChartArea);
  EXPECT_EQ(Invariants(*Control).Faults() + Invariants(*Second).Faults(), "");

  const auto closed = Control->Workflow();
  Control->Workflow(nullptr);
  closed->Arcs.First()->InsertVector(closed->Vectors.First());
  EXPECT_EQ(closed->Elbows.Count(), 2);
  EXPECT_EQ(Invariants(*Second).Faults(), "") << "a workflow that is shown nowhere borrows nothing";
  Control->Workflow(closed);
}

TEST_F(TwoControls, HaveAUseModeEach) {
  Control->UseMode(vntRun);
  const auto place = Net().StartPlace, other = Second->Workflow()->StartPlace;
  const float left = place->Image->Left();
  place->MoveTo(7000, 700);
  other->MoveTo(7000, 700);
  EXPECT_EQ(place->Image->Left(), left) << "nothing is drawn in run mode";
  EXPECT_EQ(other->Image->Left(), 7000);
  Second->UseMode(vntStepTest);
  Control->UseMode(vntTest);
  Control->Workflow()->FireNext();
  EXPECT_TRUE(Messages.empty()) << "a step is asked for in the other control alone";
  Second->Workflow()->FireNext();
  EXPECT_EQ(Messages, std::vector<std::string>{"Fire next?"});
  Second->UseMode(vntDesign);
  Control->UseMode(vntDesign);
}

TEST_F(TwoControls, RememberTheSidesOfTheirOwnObjectsConnectors) {
  Net().StartPlace->InputPosition(vntTop);
  Net().StartPlace->OutputPosition(vntBottom);
  EXPECT_EQ(Second->InsertPlace()->InputPosition(), vntLeft);
  EXPECT_EQ(Second->InsertPlace()->OutputPosition(), vntRight);
  EXPECT_EQ(Control->InsertPlace()->InputPosition(), vntTop);
  EXPECT_EQ(Control->InsertPlace()->OutputPosition(), vntBottom);
}

TEST_F(TwoControls, HavePicturesOfTheirOwn) {
  ImageList large = ImageList::VantrelImages();
  large.Add("Place", 900, 900);
  Control->ImageList = &large;
  const auto place = Net().StartPlace, other = Second->Workflow()->StartPlace;
  for (const auto& each : {place, other}) each->CaseEnabled(true);
  for (const auto& each : {place, other}) each->Draw();
  EXPECT_EQ(place->Image->Width(), 900);
  EXPECT_EQ(other->Image->Width(), 480);
  Control->Reset();
  EXPECT_EQ(place->Image->Width(), 900);
  Control->Workflow(nullptr);
}

TEST_F(TwoControls, KeepCurrentElementAndFrameWhenTheOthersObjectChanges) {
  Control->CurrentControl(FirstArc().Segments().front()->LineControl.get());
  Second->CurrentControl(StartImage(*Second));
  FirstArc().Weight("3");
  EXPECT_EQ(Control->CurrentControl(), nullptr) << "its arc's labels changed";
  EXPECT_EQ(Second->CurrentControl(), StartImage(*Second));

  const Label& label = *Net().StartPlace->CaptionLabel;
  Control->CurrentControl(Net().StartPlace->CaptionLabel.get());
  Net().StartPlace->Caption("A much longer caption than before");
  EXPECT_EQ(static_cast<float>(Control->FocusFrame.InnerWidth()), std::round(label.Width()));
}

TEST_F(TwoControls, MarkAndAskTheirOwnHosts) {
  struct Recorder : Dialogs {
    std::optional<std::string> SelectOption(const std::string& prompt, const std::vector<std::string>& options) override {
      Prompts.push_back(prompt);
      return options.front();
    }
    std::vector<std::string> Prompts;
  };
  const auto own = std::make_shared<Recorder>(), others = std::make_shared<Recorder>();
  Control->Dialogs = own;
  Second->Dialogs = others;
  Second->Dirty(false);
  Control->Workflow()->CaseTracking = true;
  const auto start = Net().StartPlace;
  auto workCase = std::make_shared<WorkCase>();
  workCase->Key = workCase->Name = "WorkCase1";
  start->AddToken(Control->Workflow()->CreateToken(start, nullptr, workCase));
  Control->Workflow()->FireNext();
  EXPECT_EQ(own->Prompts.size(), 1U);
  EXPECT_TRUE(others->Prompts.empty());
  Control->Workflow()->Dirty(true);
  EXPECT_TRUE(Control->Dirty());
  EXPECT_FALSE(Second->Dirty());
}

// An embedded workflow is not shown: the settings of the workflow whose firing runs it count.
TEST_F(TwoControls, RunWhatTheirWorkflowsEmbed) {
  const auto inner = std::make_shared<Workflow>();
  const auto outer = Control->Workflow();
  outer->CaseTracking = true;
  for (const bool isRead : {false, true}) {
    if (isRead) gobjWorkflow = Second->Workflow();
    const DesignerCall call(outer);
    EXPECT_EQ(&inner->Leading(), outer.get());
    EXPECT_EQ(inner->Designer().Host.get(), outer->Designer().Host.get());
  }
  EXPECT_EQ(&inner->Leading(), Second->Workflow().get());
}

TEST_F(TwoControls, HandOnAClipboardWhoseArcsHaveLostTheirWorkflow) {
  Bend(FirstArc(), 0, 700);
  const float below = Net().Elbows.First()->Top() - Net().StartPlace->Top();
  Control->SelectAll();
  Control->Copy();
  Second->Clipboard = Control->Clipboard;
  Control->NewWorkflow();
  Second->SelectAll();
  Second->Paste();
  const auto& pasted = *Second->Workflow();
  ASSERT_EQ(pasted.Elbows.Count(), 1);
  EXPECT_NEAR(pasted.Elbows.First()->Top() - pasted.Places.First()->Top(), below, 1);
}

}  // namespace vantrel::test

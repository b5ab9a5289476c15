#include "designer/DesignerTest.h"

namespace vantrel::test {

namespace {

class ControlTest : public DesignerTest {};

std::string Names(const PropertyCollection& pcolRecords) {
  std::string names;
  for (const auto& record : pcolRecords) names += record->Name + " ";
  return names;
}

std::string OptionsOf(const PropertyRecord& pobjRecord) {
  std::string options;
  for (const auto& option : pobjRecord.Options) options += option->Prompt + " ";
  return options;
}

/// Captions of a menu: disabled ones in brackets, sub-menus after their entry.
std::string Picture(const MenuItem& pobjMenu) {
  std::string text;
  for (const auto& item : pobjMenu.Items) {
    if (!item->Visible) continue;
    text += item->Enabled ? item->Caption : "(" + item->Caption + ")";
    if (!item->Items.empty()) text += " {" + Picture(*item) + "}";
    text += item == pobjMenu.Items.back() ? "" : ", ";
  }
  return text;
}

std::string Enabled(const MenuItem& pobjMenu) {
  std::string text;
  for (const auto& item : pobjMenu.Items) {
    if (item->Visible && item->Enabled && !item->IsSeparator()) text += (item->Items.empty() ? item->Caption : Enabled(*item)) + "|";
  }
  return text;
}

}  // namespace

TEST_F(ControlTest, IsDirtyAndInDesignModeWhenItIsNew) {
  EXPECT_TRUE(Control->Dirty());
  EXPECT_EQ(Control->UseMode(), vntDesign);
  EXPECT_EQ(gobjVantrel->CurrentX(), 200);
  EXPECT_EQ(Control->GetProperties(), nullptr);
  EXPECT_FALSE(Control->ShowWeights());
}

TEST_F(ControlTest, NamesUseModes) {
  const std::vector<std::string> names = {"Design", "Test", "StepTest", "Run", "", ""};
  for (std::int32_t mode = 0; mode < 6; ++mode) EXPECT_EQ(Vantrel::UseModeName(mode), names[static_cast<std::size_t>(mode)]);
  EXPECT_EQ(Vantrel::UseModeName(-1), "");
}

TEST_F(ControlTest, TellsModeAndDirtyAlsoWhenTheyStayTheSame) {
  std::vector<int> modes, dirty;
  const auto modeListener = Control->OnUseModeChange.Connect([&](UseModeConstant mode) { modes.push_back(mode); });
  Control->NewWorkflow();
  const auto dirtyListener = Control->OnDirtyChange.Connect([&](bool value) { dirty.push_back(value); });
  Control->UseMode(vntTest);
  Control->UseMode(vntTest);
  EXPECT_EQ(modes, (std::vector<int>{1, 1}));
  Control->Workflow()->Dirty(false);
  Control->Workflow()->Dirty(false);
  Control->Dirty(true);
  EXPECT_EQ(dirty, (std::vector<int>{0, 0, 1}));
}

TEST_F(ControlTest, ShowsCountsOutsideDesignModeAndTheFrameInIt) {
  Control->NewWorkflow();
  const auto start = Net().StartPlace;
  Control->CurrentControl(start->Image.get());
  Control->UseMode(vntTest);
  EXPECT_FALSE(Control->FocusFrame.Visible());
  start->TokenCount(1234);
  EXPECT_TRUE(start->CountLabel->Visible());
  EXPECT_GT(start->CountLabel->Width(), 200) << "there is room for the text";
  EXPECT_NEAR(start->CountLabel->Left() + start->CountLabel->Width() / 2, start->Image->Left() + start->Image->Width() / 2, 1);
  Control->UseMode(vntDesign);
  EXPECT_FALSE(start->CountLabel->Visible());
  Control->CurrentControl(nullptr);
}

TEST_F(ControlTest, ShowsWeightsOnlyWhenTheSettingChanges) {
  Control->NewWorkflow();
  Control->Dirty(false);
  Control->ShowWeights(false);
  EXPECT_FALSE(Control->Dirty());
  Control->ShowWeights(true);
  EXPECT_TRUE(Control->Dirty());
  const auto arc = Net().Arcs.First();
  EXPECT_TRUE(arc->WeightLabel->Visible());
  EXPECT_GT(arc->WeightLabel->Width(), 0) << "a text without room is not to be seen";
}

TEST_F(ControlTest, ListsItsPropertiesInOrder) {
  Control->NewWorkflow();
  EXPECT_EQ(Names(*Control->GetProperties()), "StartPlace EndPlace BackColor ShowGuards ShowWeights ");
  Control->CaseTestingEnabled = true;
  const auto records = Control->GetProperties();
  EXPECT_EQ(Names(*records), "StartPlace EndPlace BackColor KeepHistory CaseTracking ShowGuards ShowWeights ");
  EXPECT_EQ(OptionsOf(*records->Item("StartPlace")), "StartPlace EndPlace ") << "no arc leads into either";
  EXPECT_EQ(OptionsOf(*records->Item("EndPlace")), "EndPlace ");
  EXPECT_EQ(records->Item("StartPlace")->Options.First()->Value.ToText(), "StartPlace");
  EXPECT_EQ(OptionsOf(*records->Item("CaseTracking")), "On Off ");
  EXPECT_EQ(records->Item("BackColor")->Type, 17);
}

TEST_F(ControlTest, StoresPropertiesAndMarksTheWorkflow) {
  struct {
    const char* Name;
    Variant Value;
    std::function<bool()> Stored;
    bool Marks;
  } const cases[] = {
      {"StartPlace", "EndPlace", [&] { return Net().StartPlace == Net().Places.Last(); }, true},
      {"EndPlace", "StartPlace", [&] { return Net().EndPlace() == Net().Places.First(); }, true},
      {"KeepHistory", true, [&] { return Net().KeepHistory; }, true},
      {"CaseTracking", true, [&] { return Net().CaseTracking; }, true},
      {"ShowGuards", true, [&] { return Net().ShowGuards; }, true},
      {"RunStyle", 1, [&] { return Net().RunStyle == vntVerbose && Control->RunStyle() == vntSilent; }, true},
      {"BackColor", 0x123456, [&] { return Control->ChartArea.BackColor() == 0x123456; }, true},
      {"backcolor", 1, [&] { return Control->BackColor() == 0x123456; }, false},
      {"BackColor", "blue", [&] { return Control->BackColor() == 0x123456 && Messages.size() == 1; }, false},
  };
  Control->NewWorkflow();
  for (const auto& [name, value, stored, marks] : cases) {
    Control->Dirty(false);
    Control->SetProperty(name, value);
    EXPECT_TRUE(stored()) << name;
    EXPECT_EQ(Control->Dirty(), marks) << name;
  }
}

TEST_F(ControlTest, FindsObjectsByTheirKeys) {
  Control->NewWorkflow();
  const auto note = Control->AddNotation();
  EXPECT_EQ(Control->GetVNTRObject("Notation1"), note);
  EXPECT_EQ(Control->GetVNTRObject("Transition1"), Net().Transitions.First());
  EXPECT_EQ(Control->GetVNTRObject("Elbow1"), nullptr);
  EXPECT_EQ(Vantrel(Tools).GetVNTRObject("Elbow1"), nullptr) << "without workflow, too";
  EXPECT_THROW(Control->GetVNTRObject("Place9"), Error);
}

TEST_F(ControlTest, OffersTheMenus) {
  EXPECT_EQ(
      Picture(Control->DesignMenu()),
      "New, Save, -, (Copy), (Paste), (Delete), (Select All), -, (Insert Arc), (Insert Place), (Insert Transition), -, (Insert Elbow), "
      "(Remove Elbow), -, (Add Notation), -, Format {(Align Horizontal), (Align Vertical), -, (Backcolor), -, Lock controls}, -, (Test), "
      "-, (Properties)");
  EXPECT_EQ(Picture(Control->TestMenu()), "Start case, -, (Add Token), (Remove Token), -, Stop Testing");
  EXPECT_EQ(Picture(Control->RoleMenu()), "Delete");
  Control->RestrictTesting(true);
  EXPECT_TRUE(Picture(Control->DesignMenu()).ends_with("Lock controls}, -, (Properties)"));
}

TEST_F(ControlTest, CommandsHaveIdsAndKeysOfTheirOwn) {
  std::multiset<std::string_view> ids, keys;
  for (const ControlCommand& command : AllCommands()) {
    ids.insert(command.Id);
    if (!command.Keys.empty()) keys.insert(command.Keys);
  }
  for (const ControlCommand& command : AllCommands()) {
    EXPECT_EQ(ids.count(command.Id), 1U) << command.Id;
    EXPECT_LE(keys.count(command.Keys), 1U) << command.Keys;
  }
  EXPECT_THROW(RunCommand(*Control, "no-such-command"), Error);
}

TEST_F(ControlTest, EnablesDesignCommandsForTheSituation) {
  constexpr const char* kAlways = "Select All|Insert Place|Insert Transition|Add Notation|Backcolor|Lock controls||Test|";
  Control->NewWorkflow();
  const auto arc = Net().Arcs.First();
  const auto line = arc->Segments().front()->LineControl.get();
  const auto situation = [&](const std::function<void()>& make) {
    Control->CurrentControl(nullptr);
    Control->Selection(nullptr);
    make();
    return Enabled(Control->DesignMenu());
  };
  EXPECT_EQ(situation([] {}), std::string("New|Save|") + kAlways);
  EXPECT_EQ(
      situation([&] { Control->CurrentControl(Net().StartPlace->Image.get()); }),
      "New|Save|Copy|Delete|Select All|Insert Arc|Insert Place|Insert Transition|Add Notation|Backcolor|Lock controls||Test|Properties|");
  EXPECT_EQ(
      situation([&] { Control->CurrentControl(line); }),
      "New|Save|Delete|Select All|Insert Place|Insert Transition|Insert Elbow|Add Notation|Backcolor|Lock controls||Test|Properties|");
  Control->InsertElbow();
  EXPECT_TRUE(Control->DesignMenu().Find(CommandIds::RemoveElbow)->Enabled);
  EXPECT_EQ(situation([&] { Select({Net().Places.First()}); }),
            "New|Save|Delete|Select All|Insert Place|Insert Transition|Add Notation|Backcolor|Lock controls||Test|");
  Control->SelectAll();
  Control->Copy();
  EXPECT_EQ(
      situation([&] { Control->SelectAll(); }),
      "New|Save|Copy|Paste|Delete|Select All|Insert Place|Insert Transition|Add Notation|Align Horizontal|Align Vertical|Backcolor|Lock "
      "controls||Test|");
  EXPECT_TRUE(HeadlessToolkit::Choose(Control->DesignMenu(), CommandIds::LockControls));
  EXPECT_EQ(situation([&] { Control->CurrentControl(line); }), "New|Save|Select All|Lock controls||Test|Properties|");
  EXPECT_TRUE(Control->Workflow()->LockControls);
}

TEST_F(ControlTest, EnablesTestCommandsForTheCurrentObject) {
  Control->NewWorkflow();
  const auto start = Net().Places.First(), end = Net().Places.Last();
  Control->CurrentObject(end);
  EXPECT_EQ(Enabled(Control->TestMenu()), "Add Token|Stop Testing|");
  Control->CurrentObject(start);
  EXPECT_EQ(Enabled(Control->TestMenu()), "Start case|Add Token|Stop Testing|");
  start->AddToken(Control->Workflow()->CreateToken(start));
  EXPECT_EQ(Enabled(Control->TestMenu()), "Start case|Add Token|Remove Token|Stop Testing|");
  Control->CurrentObject(Net().Transitions.First());
  EXPECT_EQ(Enabled(Control->TestMenu()), "Start case|Stop Testing|");
}

TEST_F(ControlTest, SurvivesItsEndWhileAMenuIsOpen) {
  Control->NewWorkflow();
  Tools.OnPopup = [&](MenuItem& menu) {
    Control.reset();
    HeadlessToolkit::Choose(menu, CommandIds::InsertPlace);
  };
  Control->ShowDesignMenu();
  EXPECT_EQ(Control, nullptr);
}

TEST_F(ControlTest, AsksDialogsForTheObjectThatIsCurrent) {
  struct Recorder : Dialogs {
    void ShowProperties(Vantrel&, ModelObject& object) override { Shown.push_back(object.NameText()); }
    std::vector<std::string> Shown;
  };
  const auto recorder = std::make_shared<Recorder>();
  Control->Dialogs = recorder;
  Control->NewWorkflow();
  Control->ShowObjectProperties();
  Control->PropertyPopupEnabled = true;
  Control->ShowObjectProperties();
  Control->CurrentControl(Net().Arcs.First()->Segments().front()->LineControl.get());
  Control->ShowObjectProperties();
  EXPECT_EQ(recorder->Shown, (std::vector<std::string>{"Vantrel", "StartPlace->Begin"}));
}

TEST_F(ControlTest, ShowsAWorkflowOnOneChartAlone) {
  const auto net = Control->NewWorkflow();
  Control->SelectAll();
  Vantrel second(Tools);
  second.Workflow(net);
  EXPECT_EQ(Control->Workflow(), nullptr) << "an object has but one picture";
  EXPECT_EQ(Invariants(second).Faults(), "");
  EXPECT_EQ(second.Selection()->Count(), 0);
  EXPECT_EQ(gobjWorkflow.get(), net.get());
}

TEST_F(ControlTest, TakesTheBackgroundColourThatTheUserChooses) {
  Control->NewWorkflow();
  Control->SetBackcolor();
  EXPECT_EQ(Control->BackColor(), kWhite);
  EXPECT_FALSE(Control->Dirty()) << "he cancelled";
  Tools.ChosenColor = 0x112233;
  Control->SetBackcolor();
  EXPECT_EQ(Control->BackColor(), 0x112233);
  EXPECT_EQ(Control->ChartArea.BackColor(), 0x112233);
  EXPECT_TRUE(Control->Dirty());
}

TEST_F(ControlTest, KeepsTheStateOfEachOfSeveralControls) {
  Control->NewWorkflow();
  Control->UseMode(vntTest);
  gintInputPosition = vntTop;
  auto second = std::make_unique<Vantrel>(Tools);
  EXPECT_EQ(gintUseMode, vntDesign);
  EXPECT_EQ(gintInputPosition, vntLeft);
  EXPECT_EQ(gobjWorkflow.get(), nullptr);
  second->NewWorkflow();

  const auto place = Control->InsertPlace();
  EXPECT_EQ(place->Workflow.get(), Control->Workflow().get());
  EXPECT_EQ(place->InputPosition(), vntTop);
  EXPECT_EQ(Control->UseMode(), vntTest);
  EXPECT_EQ(gobjWorkflow, second->Workflow()) << "the second one's state is back";
  EXPECT_EQ(Invariants(*second).Faults(), "");

  // One control's listener calls the other one.
  const auto listener = second->OnSelected.Connect([&](ModelObject&) { Control->UseMode(vntStepTest); });
  second->CurrentControl(second->Workflow()->StartPlace->Image.get());
  EXPECT_EQ(gintUseMode, vntDesign);
  EXPECT_EQ(Control->UseMode(), vntStepTest);

  second.reset();
  EXPECT_EQ(gintUseMode, vntStepTest);
  EXPECT_EQ(gobjWorkflow, Control->Workflow());
  Control.reset();
  EXPECT_EQ(gintUseMode, vntDesign);
  EXPECT_EQ(gobjVantrel->NewImage(), nullptr) << "the built-in host serves again";
}

TEST_F(ControlTest, HearsOfItsOwnWorkflowWhicheverControlIsNewer) {
  Control->NewWorkflow();
  Vantrel second(Tools);
  second.NewWorkflow();
  second.Workflow()->Dirty(true);
  Control->Workflow()->Dirty(true);
  EXPECT_TRUE(Control->Dirty());
  Control->Workflow()->Dirty(false);  // as when a host saves it
  EXPECT_FALSE(Control->Dirty());
  EXPECT_TRUE(second.Dirty());
}

}  // namespace vantrel::test

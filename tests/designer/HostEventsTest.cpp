#include "designer/Commands.h"
#include "designer/gestures/GestureTest.h"

namespace vantrel::test {

namespace {

/// Records the events of the host in order.
class HostEventsTest : public GestureTest {
 protected:
  HostEventsTest() {
    Keep(Control->OnSelected.Connect([this](ModelObject& object) { Hear("selected " + NameOf(object)); }));
    Keep(Control->OnDirtyChange.Connect([this](bool dirty) { Hear(dirty ? "dirty" : "clean"); }));
    Keep(Control->OnPasted.Connect([this](const auto&) { Hear("pasted"); }));
    Keep(Control->OnUseModeChange.Connect([this](UseModeConstant) { Hear("mode"); }));
    Keep(Control->OnRightClick.Connect([this](ModelObject& object) { Hear("right click " + NameOf(object)); }));
  }
  void Keep(Subscription pobjSubscription) { mcolKept.push_back(std::move(pobjSubscription)); }
  void Hear(const std::string& pstrEvent) {
    Heard.push_back(pstrEvent);
    if (Do) Do();
  }
  /// The number of the Error that it throws, or 0.
  static std::int32_t NumberOf(const std::function<void()>& pWork) {
    try {
      pWork();
    } catch (const Error& error) {
      return error.Number;
    }
    return 0;
  }

  std::vector<std::string> Heard;
  std::function<void()> Do;  ///< what the host does whenever it hears something

 private:
  static std::string NameOf(const ModelObject& pobjObject) {
    return dynamic_cast<const Vantrel*>(&pobjObject) ? "the control" : KeyOf(pobjObject);
  }
  std::vector<Subscription> mcolKept;
};

using Told = std::vector<std::string>;

}  // namespace

TEST_F(HostEventsTest, ComeInOrderWhenTheCallThatTheyBelongToIsOver) {
  Do = [&] { EXPECT_EQ(Invariants(*Control).Faults(), "") << Heard.back(); };
  auto selected = Control->OnSelected.Connect([&](ModelObject& object) {
    EXPECT_TRUE(&object == &Start());
    EXPECT_TRUE(Control->CurrentControl() == Start().Image.get()) << "it is current by then";
  });
  Click(*Start().Image);
  EXPECT_EQ(Heard, Told{"selected Place1"});
  selected.Disconnect();
  Control->Copy();
  Heard.clear();
  Control->Paste();
  EXPECT_EQ(Heard.back(), "pasted");
  EXPECT_GT(Heard.size(), 1U);
  Heard.clear();
  Click(9000, 7000, vntRightButton);
  Control->UseMode(vntTest);
  Control->UseMode(vntDesign);
  EXPECT_EQ(Heard, (Told{"right click the control", "mode", "mode"}));
}

TEST_F(HostEventsTest, ComeAtOnceWhereTheHostItselfEditsTheModel) {
  Net->Dirty(true);
  EXPECT_EQ(Heard, Told{"dirty"});
  Start().SetProperty("Caption", "Inbox");
  EXPECT_EQ(Heard.size(), 2U);
}

TEST_F(HostEventsTest, OfTokensComeInTheMiddle) {
  Control->InsertArc(Net->Transitions.First(), Net->Places.Last());
  Net->KeepHistory = true;
  Begin().TriggerType(vntTimed);
  Begin().OutputType(vntBroadcast);
  Net->EndPlace(nullptr);
  Control->UseMode(vntTest);
  Start().AddToken(Net->CreateToken(&Start()));
  Heard.clear();
  Told seen;
  Keep(Control->OnTokenAdded.Connect([&](const std::shared_ptr<Place>& place, const auto&) {
    seen.push_back(place->Key + " " + std::to_string(place->Tokens().Count()));
    Control->Dirty(true);
    EXPECT_TRUE(Heard.empty()) << "what the host does inside of a firing started by a click is told afterwards";
  }));
  Click(*Begin().Image);
  EXPECT_EQ(seen, Told{"Place2 1"});
  EXPECT_EQ(Heard.back(), "dirty");
  Control->UseMode(vntDesign);
}

TEST_F(HostEventsTest, OfTokensMayEndTheControlInTheMiddleOfAFiring) {
  Control->InsertArc(Net->Transitions.First(), Net->Places.Last());
  Control->UseMode(vntTest);
  Begin().TriggerType(vntTimed);
  Begin().OutputType(vntBroadcast);
  Net->EndPlace(nullptr);
  Start().AddToken(Net->CreateToken(&Start()));
  Keep(Control->OnTokenAdded.Connect([&](const auto&, const auto&) { Control.reset(); }));
  const Image& image = *Begin().Image;
  const float x = MiddleX(image), y = MiddleY(image);
  Net = nullptr;
  Press(x, y);
  EXPECT_EQ(Control, nullptr);
}

TEST_F(HostEventsTest, AreAllToldWhateverAListenerThrows) {
  Do = [] { throw Error(vntErrTypeMismatch); };
  Told others;
  Keep(Control->OnPasted.Connect([&](const auto&) { others.emplace_back("pasted"); }));
  Control->Selection(nullptr);
  Control->CurrentControl(nullptr);
  DesignerTest::Select({Net->Places.First()});
  Control->Copy();
  Heard.clear();
  EXPECT_EQ(NumberOf([&] { Control->Paste(); }), vntErrTypeMismatch) << "the caller learns of it";
  EXPECT_EQ(Heard.back(), "pasted");
  EXPECT_EQ(Net->Places.Count(), 2) << "the work is done";
  EXPECT_EQ(NumberOf([&] { Control->DeleteObject(std::make_shared<Place>()); }), vntErrInvalidCall) << "its own failure says more";
  EXPECT_EQ(NumberOf([&] { Control->Dirty(true); }), vntErrTypeMismatch);
  EXPECT_TRUE(Messages.empty());
  Click(9000, 7000);
  EXPECT_EQ(Messages.size(), 1U) << "users see it once";
}

TEST_F(HostEventsTest, OfAControlThatAListenerClosesAreToldNoMore) {
  Control->SelectAll();
  Control->Copy();
  Heard.clear();
  Do = [&] { Control.reset(); };
  Control->Paste();
  EXPECT_EQ(Heard.size(), 1U);
}

// A listener's own call first delivers the events that still wait, even of objects that the listener has removed.
TEST_F(HostEventsTest, StayInOrderWhereAListenerShowsAnotherWorkflow) {
  Do = [&] {
    if (Heard.size() > 1) return;
    Net = nullptr;
    Control->NewWorkflow();
  };
  Click(*Start().Image, vntRightButton);
  EXPECT_EQ(Heard, (Told{"selected Place1", "right click Place1", "clean"}));
}

TEST_F(HostEventsTest, AreNotLateWhileAListenerOrAMenuRunsAnEventLoop) {
  Vantrel second(Tools);
  second.NewWorkflow();
  int told = 0;
  Keep(second.OnDirtyChange.Connect([&](bool) { ++told; }));
  const auto inEventLoop = [&] {
    second.InsertPlace();
    EXPECT_EQ(std::exchange(told, 0), 1);
  };
  Do = inEventLoop;
  Click(*Start().Image);

  Do = nullptr;
  Control->EnablePopups = true;
  Tools.OnPopup = [&](MenuItem& menu) {
    inEventLoop();
    Heard.clear();
    HeadlessToolkit::Choose(menu, CommandIds::InsertPlace);
    EXPECT_EQ(Heard, Told{"dirty"});
  };
  Click(9000, 7000, vntRightButton);
  EXPECT_EQ(Heard.back(), "right click the control");
  Tools.OnPopup = nullptr;
}

}  // namespace vantrel::test

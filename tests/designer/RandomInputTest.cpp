#include <algorithm>
#include <cstdlib>
#include <functional>
#include <limits>
#include <random>
#include <vector>

#include "designer/DesignerTest.h"

namespace vantrel::test {
namespace {

/// A user and a host that interferes, both random from a seed.
class RandomUser {
 public:
  RandomUser(Vantrel& pobjControl, HeadlessToolkit& pobjTools, std::uint32_t plngSeed) : mControl(pobjControl), mRandom(plngSeed) {
    mControl.EnablePopups = true;
    mControl.Resize(12000, 8000);
    mNets = {mControl.NewWorkflow(), mControl.NewWorkflow()};
    pobjTools.OnPopup = [this](MenuItem& menu) { Choose(menu); };
    mListening.push_back(mControl.OnSelected.Connect([this](ModelObject&) { Interfere(); }));
    mListening.push_back(mControl.OnDirtyChange.Connect([this](bool) { Interfere(); }));
    mListening.push_back(mControl.OnRightClick.Connect([this](ModelObject&) { Interfere(); }));
    mListening.push_back(mControl.OnPasted.Connect([this](const auto&) { Interfere(); }));
    mListening.push_back(mControl.OnArcInserted.Connect([this](const auto&) { Interfere(); }));
  }

  std::int32_t MostArcs() const { return mMostArcs; }
  std::int32_t MostElbows() const { return mMostElbows; }

  void Act() {
    const int kind = Below(100);
    if (kind < 30) return Press();
    if (kind < 60) return mControl.Input.Move(Somewhere(vntLeftButton));
    if (kind < 75) return mControl.Input.Release(Somewhere(vntLeftButton));
    if (kind < 78) return mControl.Input.DoubleClick(Somewhere(vntLeftButton));
    if (kind < 84) return Type();
    if (kind < 86) return Drop();
    if (kind < 88) return mControl.FocusFrame.EndEdit(Chance(3) ? "" : "text");
    if (kind < 89) return mControl.Input.Abandon();
    Command();
  }

 private:
  int Below(int plngEnd) { return std::uniform_int_distribution<int>(0, plngEnd - 1)(mRandom); }
  bool Chance(int plngOneIn) { return Below(plngOneIn) == 0; }

  // Mostly on an element, as most of a chart is empty.
  PointerInput Somewhere(MouseButton pButton) {
    if (Chance(200)) return {std::numeric_limits<float>::quiet_NaN(), Chance(2) ? 0 : std::numeric_limits<float>::infinity(), pButton};
    const auto elements = mControl.ChartArea.ElementsIn({-1e6F, -1e6F, 1e6F, 1e6F});
    const auto shift = static_cast<std::int16_t>(Chance(4) ? vntShift : vntNoShift);
    if (elements.empty() || Chance(4))
      return {static_cast<float>(Below(9000) - 500), static_cast<float>(Below(8000) - 500), pButton, shift};
    Rect box = elements[static_cast<std::size_t>(Below(static_cast<int>(elements.size())))]->Bounds();
    if (Chance(8) && mControl.FocusFrame.ShowsHandles()) box = mControl.FocusFrame.Handle(Below(FocusFrame::kHandles));
    return {(box.Left + box.Right) / 2 + static_cast<float>(Below(61) - 30),
            (box.Top + box.Bottom) / 2 + static_cast<float>(Below(61) - 30), pButton, shift};
  }

  void Press() { mControl.Input.Press(Somewhere(Chance(6) ? vntRightButton : vntLeftButton)); }

  void Type() {
    const std::int16_t codes[] = {37, 38, 39, 40, 27, 8, 46};
    mControl.Input.Key(codes[Below(Chance(3) ? 7 : 5)], static_cast<std::int16_t>(Below(3)));
  }

  void Drop() {
    mControl.DragObject = Chance(2) ? mNets[0] : nullptr;
    mControl.Input.Drop(Somewhere(vntLeftButton));
  }

  void Choose(const MenuItem& pobjMenu) {
    if (pobjMenu.Items.empty() || Chance(5)) return;
    const MenuItem& item = *pobjMenu.Items[static_cast<std::size_t>(Below(static_cast<int>(pobjMenu.Items.size())))];
    if (!item.Items.empty()) return Choose(item);
    HeadlessToolkit::Choose(pobjMenu, item.Id);
  }

  // Another control shows the workflow, or nothing.
  void ShowElsewhere() {
    if (!mOther || Chance(3)) mOther = std::make_unique<Vantrel>(mControl.Tools());
    mOther->Workflow(mControl.Workflow());
    if (Chance(2)) mOther->InsertPlace();
    EXPECT_EQ(Invariants(*mOther).Faults(), "");
  }

  void ShowAnother() {
    const auto kind = Below(4);
    if (kind == 0) return ShowElsewhere();
    auto& net = mNets[static_cast<std::size_t>(kind & 1)];
    if (kind == 3) net = nullptr;
    const auto shown = net ? net : (net = mControl.NewWorkflow());
    mControl.Workflow(shown);
  }

  template <class T>
  std::shared_ptr<T> Any(const Collection<T>& pcolObjects) {
    return pcolObjects.IsEmpty() ? nullptr : pcolObjects.Item(1 + Below(pcolObjects.Count()));
  }

  std::shared_ptr<ModelObject> AnyObject() {
    const auto net = mControl.Workflow();
    if (!net) return nullptr;
    const int kind = Below(3);
    if (kind == 0) return Any(net->Arcs);
    return kind == 1 ? std::shared_ptr<ModelObject>(Any(net->Places)) : Any(net->Transitions);
  }

  void Build() {
    if (!mControl.Workflow()) mControl.NewWorkflow();
    const auto net = mControl.Workflow();
    mControl.CurrentX = static_cast<float>(Below(8000));
    mControl.CurrentY = static_cast<float>(Below(7000));
    if (Chance(2)) mControl.InsertPlace();
    if (Chance(2)) mControl.InsertTransition();
    const auto place = Any(net->Places);
    const auto transition = Any(net->Transitions);
    if (place && transition) Chance(2) ? mControl.InsertArc(place, transition) : mControl.InsertArc(transition, place);
    const auto segment = Any(net->Vectors);
    if (!segment || !Chance(2)) return;
    mControl.CurrentControl(segment->LineControl.get());
    mControl.InsertElbow();
    mMostArcs = std::max(mMostArcs, net->Arcs.Count());
    mMostElbows = std::max(mMostElbows, net->Elbows.Count());
  }

  void PutToken() {
    const auto net = mControl.Workflow();
    const auto place = std::dynamic_pointer_cast<Place>(AnyObject());
    if (place) place->AddToken(net->CreateToken(place));
  }

  // Operations throw when they cannot run at this moment.
  void Command() {
    try {
      Operate();
    } catch (const Error&) {
      // Then it did nothing or only a part; the invariants hold all the same.
    }
    const auto net = mControl.Workflow();
    if (net && net->Places.Count() + net->Transitions.Count() > 40) mControl.NewWorkflow();
  }

  void Operate() {
    switch (Below(28)) {
      case 0:
        return mControl.Copy();
      case 1:
        return mControl.Paste();
      case 2:
        return Chance(3) ? mControl.Delete() : Build();
      case 3:
        return Chance(3) ? ShowAnother() : Build();
      case 4:
        mControl.SelectAll();
        mControl.MultiSelectOn = Chance(2);
        return;
      case 5:
        return mControl.UseMode(static_cast<UseModeConstant>(Chance(2) ? 0 : Below(4)));
      case 6:
        return mControl.LockControls(Chance(4));
      case 7:
        return mControl.InsertElbow();
      case 8:
        return mControl.RemoveElbow();
      case 9:
        return mControl.StartArcInsert();
      case 10:
        mControl.InsertArc(AnyObject(), AnyObject());
        return;
      case 11:
        mControl.AddNotation();
        return;
      case 12:
        return mControl.DeleteObject(AnyObject());
      case 13:
        return mControl.AlignSelection(Chance(2) ? "Horizontal" : "Vertical");
      case 14:
        return mControl.ShowWeights(Chance(2));
      case 15:
        return PutToken();
      case 16:
        return mControl.Reset();
      case 17:
        return mControl.Resize(static_cast<float>(Below(12000)), static_cast<float>(Below(8000)));
      default:
        return Build();
    }
  }

  void Interfere() {
    if (mIsInterfering || !Chance(50)) return;
    mIsInterfering = true;
    Command();
    mIsInterfering = false;
  }

  Vantrel& mControl;
  std::mt19937 mRandom;
  std::vector<std::shared_ptr<Workflow>> mNets;
  std::vector<Subscription> mListening;
  std::unique_ptr<Vantrel> mOther;
  std::int32_t mMostArcs = 0, mMostElbows = 0;
  bool mIsInterfering = false;
};

int EventsWanted() {
  const char* const wanted = std::getenv("VANTREL_RANDOM_EVENTS");
  return wanted ? std::atoi(wanted) : 10'000;
}

class RandomInput : public DesignerTest, public ::testing::WithParamInterface<bool> {};

TEST_P(RandomInput, LeavesAWholeChart) {
  constexpr int kEvents = 1'000;
  std::int32_t arcs = 0, elbows = 0;
  for (std::uint32_t seed = 1; static_cast<int>(seed) * kEvents <= EventsWanted(); ++seed) {
    Control = std::make_unique<Vantrel>(Tools);
    if (GetParam()) Control->Comfort = Comfort::All();
    RandomUser user(*Control, Tools, seed);
    for (int event = 1; event <= kEvents; ++event) {
      user.Act();
      if (Control->Input.IsCaptured()) continue;  // a connector that is being dragged is not where its arcs end
      ASSERT_EQ(Invariants(*Control).Faults(), "") << "event " << event << " of seed " << seed;
    }
    Control->Input.Abandon();
    ASSERT_EQ(Invariants(*Control).Faults(), "") << "seed " << seed;
    arcs = std::max(arcs, user.MostArcs());
    elbows = std::max(elbows, user.MostElbows());
  }
  EXPECT_GE(arcs, 5) << "charts too empty to find anything";
  EXPECT_GE(elbows, 3) << "charts too empty to find anything";
  Tools.OnPopup = nullptr;
}

INSTANTIATE_TEST_SUITE_P(Comfort, RandomInput, ::testing::Bool(), [](const auto& test) { return test.param ? "On" : "Off"; });

}  // namespace
}  // namespace vantrel::test

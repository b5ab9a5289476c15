#include "model/game/StraightFiring.h"

#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/MsgBox.h"

namespace vantrel::test {
namespace {

class FirstCaseHost final : public TestHost {
 public:
  bool TakesFirstCase() const override { return true; }
  std::optional<std::string> SelectOption(const std::string&, const std::vector<std::string>& pcolOptions) override {
    return pcolOptions.empty() ? std::nullopt : std::optional(pcolOptions.back());
  }
};

/// Plays a random net with random meddling, the same for the same seed. One with a listener fires by steps.
class Player {
 public:
  Player(unsigned pSeed, bool pblnListening) : mRandom(pSeed) {
    Net().CaseTracking = Chance(50);
    Net().KeepHistory = Chance(50);
    for (int i = 2 + Below(5); i > 0; --i) {
      AddPlace(Net())->SelectionType = Chance(30) ? vntSelectionTypeLIFO : vntSelectionTypeFIFO;
    }
    for (int i = 2 + Below(5); i > 0; --i) AddRandomTransition();
    if (Chance(50)) Net().EndPlace(Net().Places.Last());
    for (const char* key : {"A", "B", "C"}) mCases.push_back(NewCase(key));
    mCases.push_back(nullptr);
    if (pblnListening) mListening = Net().OnTokenAdded.Connect([](const auto&, const auto&) {});
  }

  void Play(int pintSteps) {
    for (int i = 0; i < pintSteps; ++i) {
      try {
        DoSomething();
      } catch (const Error& error) {
        mLog += "!" + std::to_string(error.Number);
      }
    }
  }
  int StraightFirings() const { return mStraight; }

  std::string Dump() const {
    std::string text = mLog + "\n";
    for (const auto& place : Net().Places) {
      text += (place->CaseEnabled() ? "P*" : "P") + std::to_string(place->TokenCount());
      for (const auto& token : place->Tokens()) text += " " + token->Key;
      text += "\n";
    }
    for (const auto& token : Net().Tokens) {
      text += token->Key + " " + token->Name + " in " + KeyOf(token->Place.get()) + " of " + (token->WorkCase ? token->WorkCase->Key : "") +
              " by " + KeyOf(token->CreateTransition.get()) + " to " + KeyOf(token->ConsumeTransition.get()) +
              (token->CaseEnabled() ? " enabled" : "") + (token->DateConsumed.IsZero() ? "" : " dated") +
              (token->Dirty ? " dirty\n" : "\n");
    }
    for (const auto& transition : Net().Transitions) text += transition->Enabled() ? "1" : "0";
    for (const auto& transition : Net().FiringStack) text += " " + transition->Key;
    return text;
  }

 private:
  vantrel::Workflow& Net() const { return *mHost.Net; }
  int Below(int pintLimit) { return static_cast<int>(mRandom() % static_cast<unsigned>(pintLimit)); }
  bool Chance(int pintPercent) { return Below(100) < pintPercent; }
  template <class T>
  const std::shared_ptr<T>& Any(const Collection<T>& pcolItems) {
    return pcolItems.Item(1 + Below(pcolItems.Count()));
  }
  static std::string KeyOf(const Node* pobjNode) { return pobjNode ? pobjNode->Key : "-"; }

  void AddRandomTransition() {
    const auto transition = AddTransition(Net());
    if (Chance(10)) transition->OutputType(Chance(50) ? vntSelect : vntProgrammed);
    for (int i = Chance(70) ? 1 : Below(4); i > 0; --i) Connect(Any(Net().Places), transition);
    for (int i = Chance(50) ? 1 : Below(4); i > 0; --i) Connect(transition, Any(Net().Places));
  }

  void DoSomething() {
    const int what = Below(100);
    if (what < 60) {
      FireNext();
    } else if (what < 85) {
      PutToken(*Any(Net().Places), mCases[static_cast<std::size_t>(Below(4))]);
    } else if (what < 88) {
      Net().FireNext(Any(Net().Transitions));
    } else if (what < 92) {
      Any(Net().Places)->RemoveToken(nullptr);
    } else if (!Net().Tokens.IsEmpty()) {
      Meddle(what);
    }
  }

  void FireNext() {
    if (StraightFiring::FireNext(Net())) {
      ++mStraight;
    } else {
      Net().FireNext();
    }
  }

  void Meddle(int pintHow) {
    const auto token = Any(Net().Tokens);
    const auto transition = Any(Net().Transitions);
    switch (pintHow) {
      case 92:
        token->WorkCase = mCases[static_cast<std::size_t>(Below(4))];
        break;
      case 93:
        token->CaseEnabled(Chance(50));
        break;
      case 94:
        if (token->Place) token->Place->Tokens().RemoveIfThere(token->Key);
        break;
      case 95:  // takes the key that the next token gets
        Any(Net().Places)->Tokens().Add(std::make_shared<Token>(), NextKey(Net().Tokens, "Token"));
        break;
      case 96:
        Net().FiringStack.RemoveIfThere(transition->Key);
        break;
      case 97:
        transition->TriggerType(Chance(20) && transition->OutArcs.IsEmpty() ? vntAutomatic : Chance(20) ? vntTimed : vntUser);
        break;
      case 98:
        if (Chance(10) && !transition->InArcs.IsEmpty()) Any(transition->InArcs)->Place = nullptr;
        break;
      default:
        for (int i = 0; i < 80; ++i) PutToken(*Any(Net().Places), mCases[static_cast<std::size_t>(Below(4))]);
    }
  }

  FirstCaseHost mHost;
  std::mt19937 mRandom;
  std::vector<std::shared_ptr<WorkCase>> mCases;
  std::string mLog;
  const MsgBoxScope mBoxes{[this](const auto& text, auto, const auto&) {
    mLog += "[" + text + "]";
    return vntOK;
  }};
  Subscription mListening;
  int mStraight = 0;
};

TEST(StraightFiring, DoesWhatTheStepsDo) {
  constexpr int kLooks = 20, kSteps = 3;
  int straight = 0;
  for (unsigned seed = 1; seed <= 150; ++seed) {
    std::vector<std::string> expected;
    {
      Player player(seed, true);
      for (int i = 0; i < kLooks; ++i) {
        player.Play(kSteps);
        expected.push_back(player.Dump());
      }
      ASSERT_EQ(player.StraightFirings(), 0);
    }
    Player player(seed, false);
    for (int i = 0; i < kLooks; ++i) {
      player.Play(kSteps);
      ASSERT_EQ(player.Dump(), expected[static_cast<std::size_t>(i)]) << "seed " << seed << ", look " << i;
    }
    straight += player.StraightFirings();
  }
  EXPECT_GT(straight, 1500);  // of 9,000 steps, 5,400 of which fire
}

}  // namespace
}  // namespace vantrel::test

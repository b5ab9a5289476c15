#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "game/ReferenceGame.h"
#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

using Random = std::mt19937;

std::size_t Below(Random& pRandom, std::size_t pLimit) { return pRandom() % pLimit; }
bool Chance(Random& pRandom, std::size_t pOneIn) { return Below(pRandom, pOneIn) == 0; }

// Automatic transitions lead from places to later ones only: no loops that the reference would never leave.
NetPlan RandomPlan(Random& pRandom) {
  NetPlan plan;
  plan.CaseTracking = Chance(pRandom, 2);
  plan.KeepHistory = Chance(pRandom, 2);
  plan.Places.resize(2 + Below(pRandom, 5));
  for (auto& place : plan.Places) place.Selection = Chance(pRandom, 2) ? vntSelectionTypeLIFO : vntSelectionTypeFIFO;
  plan.Transitions.resize(1 + Below(pRandom, 5));
  const char* const guards[] = {"", "", "yes", "no"};
  for (std::size_t t = 0; t < plan.Transitions.size(); ++t) {
    auto& transition = plan.Transitions[t];
    const TriggerTypes triggers[] = {vntUser, vntUser, vntAutomatic, vntAutomatic, vntMessage, vntTimed};
    const OutputTypes outputs[] = {vntBroadcast, vntBroadcast, vntBroadcast, vntSelect, vntSelect, vntDistribute, vntProgrammed};
    transition.Trigger = triggers[Below(pRandom, 6)];
    transition.Output = outputs[Below(pRandom, 7)];
    transition.HasAction = Chance(pRandom, 2);
    const bool forward = transition.Trigger == vntAutomatic;
    const std::size_t border = 1 + Below(pRandom, plan.Places.size() - 1);
    for (std::size_t i = Below(pRandom, 4); i > 0; --i) {
      plan.Arcs.push_back({Below(pRandom, forward ? border : plan.Places.size()), t, true, ""});
    }
    for (std::size_t i = Below(pRandom, 4); i > 0; --i) {
      const auto place = forward ? border + Below(pRandom, plan.Places.size() - border) : Below(pRandom, plan.Places.size());
      plan.Arcs.push_back({place, t, false, guards[Below(pRandom, 4)]});
    }
  }
  std::shuffle(plan.Arcs.begin(), plan.Arcs.end(), pRandom);
  return plan;
}

class ScriptedHost : public TestHost {
 public:
  explicit ScriptedHost(Asks pAsk) : mAsk(std::move(pAsk)) {}
  std::optional<std::string> SelectOption(const std::string& pstrPrompt, const std::vector<std::string>& pcolOptions) override {
    return mAsk(pstrPrompt, pcolOptions);
  }
  void RunAction(Transition&) override { Log += "run "; }
  void SelectTokens(vantrel::Workflow&, Transition&) override { Log += "distribute "; }

  std::string Log;

 private:
  Asks mAsk;
};

// What a listener does while a question is open; draws from the generator.
using Meddles = std::function<void(Random& random)>;

// The same answers to the same questions in the same order; the questions themselves go into the log.
Asks Answers(unsigned pSeed, std::string& pLog, Meddles pMeddle) {
  return [&pLog, pMeddle, random = Random(pSeed)](const std::string& prompt, const std::vector<std::string>& options) mutable {
    pLog += prompt;
    for (const auto& option : options) pLog += "/" + option;
    if (Chance(random, 4)) pMeddle(random);
    const auto pick = random();
    std::optional<std::string> answer;
    if (pick % 5 != 0) answer = options.empty() ? "" : options[pick / 5 % options.size()];
    if (pick % 7 == 0) answer = "none of them";
    return answer;
  };
}

class RealGame {
 public:
  RealGame(const NetPlan& pPlan, const std::vector<PlannedCase>& pCases, Asks pAsk) : mHost(std::move(pAsk)) {
    Net().CaseTracking = pPlan.CaseTracking;
    Net().KeepHistory = pPlan.KeepHistory;
    for (const auto& planned : pPlan.Places) AddPlace(Net())->SelectionType = planned.Selection;
    for (const auto& planned : pPlan.Transitions) {
      const auto transition = AddTransition(Net());
      transition->TriggerType(planned.Trigger);
      transition->OutputType(planned.Output);
      if (planned.HasAction) transition->Action = "act";
    }
    for (const auto& planned : pPlan.Arcs) {
      const auto place = PlaceAt(planned.Place);
      const auto transition = TransitionAt(static_cast<int>(planned.Transition));
      (planned.IsInput ? Connect(place, transition) : Connect(transition, place))->Guard(planned.Guard);
    }
    Net().EndPlace(Net().Places.Last());
    for (const auto& planned : pCases) {
      mCases.push_back(NewCase(planned.Key));
      mCases.back()->Name = planned.Name;
    }
    Listen();
  }

  void Put(std::size_t pPlace, int pCase) { PutToken(*PlaceAt(pPlace), CaseAt(pCase)); }
  void Remove(std::size_t pPlace, int pToken) {
    PlaceAt(pPlace)->RemoveToken(pToken == ReferenceGame::kNone ? nullptr : Net().Tokens.Item(pToken + 1));
  }
  void Fire(std::size_t pTransition, int pCase) { TransitionAt(static_cast<int>(pTransition))->Fire(CaseAt(pCase)); }
  void FireNext(int pTransition) { Net().FireNext(TransitionAt(pTransition)); }
  void StartCase(int pCase) { Net().z_StartCase(CaseAt(pCase)); }
  void ChangeByHand(int pToken, int pCase) {
    const auto& token = Net().Tokens.Item(pToken + 1);
    token->WorkCase = CaseAt(pCase);
    token->CaseEnabled(false);
  }

  std::string Dump() {
    std::string text = mHost.Log + "\n";
    for (const auto& place : Net().Places) {
      EXPECT_EQ(place->TokenCount(), static_cast<float>(place->Tokens().Count()));
      text += place->CaseEnabled() ? "P*" : "P";
      for (const auto& token : place->Tokens()) text += " " + Number(token->Key);
      text += "\n";
    }
    for (const auto& token : Net().Tokens) {
      text += "case " + (token->WorkCase ? token->WorkCase->Key : "") + " by " + Index(token->CreateTransition) + " to " +
              Index(token->ConsumeTransition) + (token->CaseEnabled() ? " enabled" : "") + (token->DateConsumed.IsZero() ? "" : " dated") +
              "\n";
    }
    for (const auto& transition : Net().Transitions) text += transition->Enabled() ? "1" : "0";
    for (const auto& transition : Net().FiringStack) text += " " + Index(transition);
    return text;
  }

 private:
  vantrel::Workflow& Net() const { return *mHost.Net; }
  std::shared_ptr<Place> PlaceAt(std::size_t pPlace) const { return Net().Places.Item(static_cast<int>(pPlace) + 1); }
  std::shared_ptr<Transition> TransitionAt(int pIndex) const { return pIndex < 0 ? nullptr : Net().Transitions.Item(pIndex + 1); }
  std::shared_ptr<WorkCase> CaseAt(int pCase) const { return pCase < 0 ? nullptr : mCases[pCase]; }
  static std::string Number(const std::string& pstrKey) { return pstrKey.substr(pstrKey.find_first_of("0123456789")); }
  static std::string Index(const Ref<Transition>& pobjTransition) {
    return pobjTransition ? std::to_string(std::stoi(Number(pobjTransition->Key)) - 1) : "-1";
  }

  void Listen() {
    mAdded = Net().OnTokenAdded.Connect([this](const auto& place, const auto& token) {
      mHost.Log += "+" + std::to_string(std::stoi(Number(place->Key)) - 1) + ":" + Number(token->Key) + " ";
    });
    mFinished = Net().OnCaseFinished.Connect([this](const auto& token) { mHost.Log += "end:" + Number(token->Key) + " "; });
  }

  ScriptedHost mHost;
  std::vector<std::shared_ptr<WorkCase>> mCases;
  const MsgBoxScope mBoxes{[this](const auto&, auto, const auto&) {
    mHost.Log += "box ";
    return vntOK;
  }};
  Subscription mAdded, mFinished;
};

template <class Game, class Operation>
int OutcomeOf(Game& pGame, Operation&& pOperation) {
  try {
    pOperation(pGame);
    return 0;
  } catch (const Error& error) {
    return error.Number;
  } catch (const ReferenceGame::Refused& refused) {
    return refused.Number;
  }
}

class Duel {
 public:
  explicit Duel(unsigned pSeed)
      : mRandom(pSeed),
        mPlan(RandomPlan(mRandom)),
        mReal(mPlan, mCases, Answers(pSeed, mRealQuestions, [this](Random& random) { Meddle(mReal, random); })),
        mReference(mPlan, mCases, Answers(pSeed, mReferenceQuestions, [this](Random& random) { Meddle(mReference, random); })) {}

  void Play() {
    if (Chance(mRandom, 8)) {
      for (int i = 0; i < 150; ++i) Put();
    }
    for (int step = 0; step < 60; ++step) {
      SCOPED_TRACE("operation " + std::to_string(step));
      PlayOne();
      ASSERT_EQ(mReal.Dump(), mReference.Dump());
      ASSERT_EQ(mRealQuestions, mReferenceQuestions);
    }
  }

 private:
  void PlayOne() {
    const int workCase = AnyCase();
    const auto place = Below(mRandom, mPlan.Places.size());
    const auto transition = Below(mRandom, mPlan.Transitions.size());
    switch (Below(mRandom, 8)) {
      case 0:
        return Both([=](auto& game) { game.FireNext(static_cast<int>(transition)); });
      case 1:
        return Both([=](auto& game) { game.Fire(transition, workCase); });
      case 2: {
        const auto tokens = mReference.TokensIn(place);
        const int token = tokens.empty() || Chance(mRandom, 4) ? ReferenceGame::kNone : tokens[Below(mRandom, tokens.size())];
        return Both([=](auto& game) { game.Remove(place, token); });
      }
      case 3:
        if (Chance(mRandom, 4)) return Both([=](auto& game) { game.StartCase(workCase); });
        if (const auto tokens = mReference.TokensIn(place); !tokens.empty()) {
          const int token = tokens[Below(mRandom, tokens.size())];
          return Both([=](auto& game) { game.ChangeByHand(token, workCase); });
        }
        [[fallthrough]];
      case 4:
      case 5:
        return Put();
      default:
        return Both([](auto& game) { game.FireNext(ReferenceGame::kNone); });
    }
  }

  template <class Game>
  void Meddle(Game& pGame, Random& pRandom) {
    const auto place = Below(pRandom, mPlan.Places.size());
    const int workCase = static_cast<int>(Below(pRandom, mCases.size() + 1)) - 1;
    const auto deed = Below(pRandom, 4);
    OutcomeOf(pGame, [&](auto& game) {
      if (deed == 0) game.Remove(place, ReferenceGame::kNone);
      if (deed == 1) game.FireNext(ReferenceGame::kNone);
      if (deed > 1) game.Put(place, workCase);
    });
  }

  int AnyCase() { return static_cast<int>(Below(mRandom, mCases.size() + 1)) - 1; }
  void Put() {
    const auto place = Below(mRandom, mPlan.Places.size());
    const int workCase = AnyCase();
    Both([=](auto& game) { game.Put(place, workCase); });
  }

  template <class Operation>
  void Both(Operation&& pOperation) {
    const int real = OutcomeOf(mReal, pOperation);
    EXPECT_EQ(real, OutcomeOf(mReference, pOperation));
  }

  const std::vector<PlannedCase> mCases = {{"A", "A"}, {"B", "B"}, {"C", "named otherwise"}};
  Random mRandom;
  NetPlan mPlan;
  std::string mRealQuestions, mReferenceQuestions;
  RealGame mReal;
  ReferenceGame mReference;
};

TEST(RandomNet, PlaysLikeThePlainRules) {
  for (unsigned seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Duel(seed).Play();
    if (testing::Test::HasFailure()) return;
  }
}

}  // namespace
}  // namespace vantrel::test

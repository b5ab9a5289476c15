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

// Two nets of two steps each; some transitions of the shown net embed one of them. A step that is not automatic is fired when
// the run begins, or waits.
void AddSubflows(NetPlan& pPlan, Random& pRandom) {
  const auto outer = pPlan.Transitions.size();
  for (std::size_t net = 1; net <= 2; ++net) {
    const auto first = pPlan.Places.size();
    pPlan.Nets.push_back({first, first + 2, Chance(pRandom, 2)});
    for (int i = 0; i < 3; ++i) pPlan.Places.push_back({vntSelectionTypeFIFO, net});
    for (std::size_t i = 0; i < 2; ++i) {
      const auto transition = pPlan.Transitions.size();
      pPlan.Transitions.push_back({Chance(pRandom, 3) ? vntMessage : vntAutomatic, vntBroadcast, false, net});
      pPlan.Arcs.push_back({first + i, transition, true, ""});
      pPlan.Arcs.push_back({first + i + 1, transition, false, ""});
    }
  }
  for (std::size_t t = 0; t < outer; ++t) pPlan.Transitions[t].Embeds = Below(pRandom, 3);
}

// Automatic transitions lead from places to later ones only, and so do all where subflows fire what waits: no loops, which the
// reference would never leave.
NetPlan RandomPlan(Random& pRandom) {
  NetPlan plan;
  const bool embeds = Chance(pRandom, 2);
  plan.CaseTracking = Chance(pRandom, 2);
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
    const bool forward = embeds || transition.Trigger == vntAutomatic;
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
  plan.Nets[0] = {0, plan.Places.size() - 1, Chance(pRandom, 2)};
  if (embeds) AddSubflows(plan, pRandom);
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
    mNets.push_back(mHost.Net);
    while (mNets.size() < pPlan.Nets.size()) mNets.push_back(std::make_shared<vantrel::Workflow>());
    for (const auto& planned : pPlan.Places) {
      mPlaces.push_back(AddPlace(*mNets[planned.Net]));
      mPlaces.back()->SelectionType = planned.Selection;
    }
    for (const auto& planned : pPlan.Transitions) {
      const auto transition = mTransitions.emplace_back(AddTransition(*mNets[planned.Net]));
      transition->TriggerType(planned.Trigger);
      transition->OutputType(planned.Output);
      if (planned.HasAction) transition->Action = "act";
      if (planned.Embeds != 0) transition->Object(mNets[planned.Embeds]);
    }
    for (const auto& planned : pPlan.Arcs) {
      const auto& place = mPlaces[planned.Place];
      const auto& transition = mTransitions[planned.Transition];
      (planned.IsInput ? Connect(place, transition) : Connect(transition, place))->Guard(planned.Guard);
    }
    for (std::size_t net = 0; net < mNets.size(); ++net) {
      mNets[net]->KeepHistory = pPlan.Nets[net].KeepHistory;
      mNets[net]->StartPlace = mPlaces[pPlan.Nets[net].Start];
      mNets[net]->EndPlace(mPlaces[pPlan.Nets[net].End]);
      Listen(*mNets[net]);
    }
    for (const auto& planned : pCases) {
      mCases.push_back(NewCase(planned.Key));
      mCases.back()->Name = planned.Name;
    }
  }

  void Put(std::size_t pPlace, int pCase) { PutToken(*mPlaces[pPlace], CaseAt(pCase)); }
  void RemoveAt(std::size_t pPlace, int pPosition) {
    auto& place = *mPlaces[pPlace];
    place.RemoveToken(pPosition == ReferenceGame::kNone ? nullptr : place.Tokens().Item(pPosition + 1));
  }
  void Fire(std::size_t pTransition, int pCase) { mTransitions[pTransition]->Fire(CaseAt(pCase)); }
  void FireNext(int pTransition) { Net().FireNext(pTransition < 0 ? nullptr : mTransitions[pTransition]); }
  void StartCase(int pCase) { Net().z_StartCase(CaseAt(pCase)); }
  void ChangeByHand(std::size_t pPlace, int pPosition, int pCase) {
    const auto& token = mPlaces[pPlace]->Tokens().Item(pPosition + 1);
    token->WorkCase = CaseAt(pCase);
    token->CaseEnabled(false);
  }

  std::string Dump() {
    std::string text = mHost.Log + "\n";
    for (const auto& place : mPlaces) {
      EXPECT_EQ(place->TokenCount(), static_cast<float>(place->Tokens().Count()));
      text += place->CaseEnabled() ? "P*" : "P";
      for (const auto& token : place->Tokens()) text += " " + Number(token->Key);
      text += "\n";
    }
    for (const auto& net : mNets) {
      for (const auto& token : net->Tokens) {
        text += "case " + (token->WorkCase ? token->WorkCase->Key : "") + " by " + Index(mTransitions, token->CreateTransition.get()) +
                " to " + Index(mTransitions, token->ConsumeTransition.get()) + (token->CaseEnabled() ? " enabled" : "") +
                (token->DateConsumed.IsZero() ? "" : " dated") + "\n";
      }
    }
    for (const auto& transition : mTransitions) text += transition->Enabled() ? "1" : "0";
    for (const auto& net : mNets) {
      for (const auto& transition : net->FiringStack) text += " " + Index(mTransitions, transition.get());
      text += "\n";
    }
    return text;
  }

 private:
  vantrel::Workflow& Net() const { return *mHost.Net; }
  std::shared_ptr<WorkCase> CaseAt(int pCase) const { return pCase < 0 ? nullptr : mCases[pCase]; }
  static std::string Number(const std::string& pstrKey) { return pstrKey.substr(pstrKey.find_first_of("0123456789")); }
  template <class N>
  static std::string Index(const std::vector<std::shared_ptr<N>>& pcolNodes, const N* pobjNode) {
    const auto found = std::find_if(pcolNodes.begin(), pcolNodes.end(), [&](const auto& node) { return node.get() == pobjNode; });
    return pobjNode ? std::to_string(found - pcolNodes.begin()) : "-1";
  }

  void Listen(vantrel::Workflow& pobjNet) {
    mListening.push_back(pobjNet.OnTokenAdded.Connect(
        [this](const auto& place, const auto& token) { mHost.Log += "+" + Index(mPlaces, place.get()) + ":" + Number(token->Key) + " "; }));
    mListening.push_back(
        pobjNet.OnFiring.Connect([this](const auto& transition) { mHost.Log += "!" + Index(mTransitions, transition.get()) + " "; }));
    mListening.push_back(pobjNet.OnCaseFinished.Connect([this](const auto& token) { mHost.Log += "end:" + Number(token->Key) + " "; }));
  }

  ScriptedHost mHost;
  std::vector<std::shared_ptr<vantrel::Workflow>> mNets;
  std::vector<std::shared_ptr<Place>> mPlaces;
  std::vector<std::shared_ptr<Transition>> mTransitions;
  std::vector<std::shared_ptr<WorkCase>> mCases;
  const MsgBoxScope mBoxes{[this](const auto&, auto, const auto&) {
    mHost.Log += "box ";
    return vntOK;
  }};
  std::vector<Subscription> mListening;
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
      ASSERT_TRUE(Agree());
      ASSERT_EQ(mRealQuestions, mReferenceQuestions);
    }
  }

 private:
  // The dumps can be long: shows where they part.
  testing::AssertionResult Agree() {
    const std::string real = mReal.Dump(), reference = mReference.Dump();
    if (real == reference) return testing::AssertionSuccess();
    const auto parting =
        static_cast<std::size_t>(std::mismatch(real.begin(), real.end(), reference.begin(), reference.end()).first - real.begin());
    const auto from = parting - std::min<std::size_t>(parting, 100);
    return testing::AssertionFailure() << real.substr(from, 200) << "\n--- not as the reference ---\n" << reference.substr(from, 200);
  }
  void PlayOne() {
    const int workCase = AnyCase();
    const auto place = Below(mRandom, mPlan.Places.size());
    const auto transition = Below(mRandom, mPlan.Transitions.size());
    switch (Below(mRandom, 8)) {
      case 0:
        if (mPlan.Transitions[transition].Net != 0) return Both([](auto& game) { game.FireNext(ReferenceGame::kNone); });
        return Both([=](auto& game) { game.FireNext(static_cast<int>(transition)); });
      case 1:
        return Both([=](auto& game) { game.Fire(transition, workCase); });
      case 2: {
        const auto position = AnyPosition(place);
        const bool unnamed = position == ReferenceGame::kNone || Chance(mRandom, 4);
        return Both([=](auto& game) { game.RemoveAt(place, unnamed ? ReferenceGame::kNone : position); });
      }
      case 3:
        if (Chance(mRandom, 4)) return Both([=](auto& game) { game.StartCase(workCase); });
        if (const auto position = AnyPosition(place); position != ReferenceGame::kNone) {
          return Both([=](auto& game) { game.ChangeByHand(place, position, workCase); });
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
      if (deed == 0) game.RemoveAt(place, ReferenceGame::kNone);
      if (deed == 1) game.FireNext(ReferenceGame::kNone);
      if (deed > 1) game.Put(place, workCase);
    });
  }

  int AnyPosition(std::size_t pPlace) {
    const auto count = mReference.CountIn(pPlace);
    return count == 0 ? ReferenceGame::kNone : static_cast<int>(Below(mRandom, count));
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

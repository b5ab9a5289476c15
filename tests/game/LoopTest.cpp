#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

using testing::HasSubstr;

struct Ring {
  std::shared_ptr<Place> First;
  std::vector<std::shared_ptr<Transition>> Transitions;
};

// Unless closed, the last transition leads to another place instead of the first one.
Ring MakeRing(Workflow& pobjNet, int plngLength, bool pblnClosed = true) {
  Ring ring{AddPlace(pobjNet, "P1"), {}};
  auto place = ring.First;
  for (int i = 1; i <= plngLength; ++i) {
    const auto transition = AddTransition(pobjNet, "T" + std::to_string(i));
    transition->TriggerType(vntAutomatic);
    Connect(place, transition);
    place = i == plngLength && pblnClosed ? ring.First : AddPlace(pobjNet, "P" + std::to_string(i + 1));
    Connect(transition, place);
    ring.Transitions.push_back(transition);
  }
  return ring;
}

std::shared_ptr<Workflow> MakeSubflow(bool pblnStartIsEnd) {
  auto workflow = std::make_shared<Workflow>();
  const auto ring = MakeRing(*workflow, 1, false);
  workflow->StartPlace = ring.First;
  workflow->EndPlace(pblnStartIsEnd ? ring.First : workflow->Places.Last());
  if (pblnStartIsEnd) ring.Transitions.front()->TriggerType(vntUser);
  return workflow;
}

void ExpectConsistent(const Workflow& pobjNet) {
  for (const auto& place : pobjNet.Places) {
    EXPECT_EQ(place->TokenCount(), static_cast<float>(place->Tokens().Count()));
    for (const auto& token : place->Tokens()) {
      if (token->Place == place && pobjNet.Tokens.Contains(token->Key)) continue;
      FAIL() << token->Key << " in " << place->Name();
    }
  }
  for (const auto& transition : pobjNet.Transitions) {
    if (transition->TriggerType() != vntAutomatic) continue;
    EXPECT_EQ(transition->Enabled(), pobjNet.FiringStack.Contains(transition->Key)) << transition->Name();
  }
}

void CleanUp(Workflow& pobjNet) {
  for (const auto& place : pobjNet.Places) place->Tokens().Clear();
  for (const auto& transition : pobjNet.Transitions) transition->Enabled(false);
  EXPECT_TRUE(pobjNet.FiringStack.IsEmpty());
}

constexpr int kMany = 100'000;

class Loop : public testing::Test {
 protected:
  // A loop that is not stopped must not use up the machine's memory.
  void LimitTokensOf(Workflow& pobjNet) {
    mLimits.push_back(pobjNet.OnTokenAdded.Connect([this](const auto&, const auto&) {
      if (++mAdded > 30'000) throw std::runtime_error("nothing stops this loop");
    }));
  }
  int ErrorOf(Place& pobjPlace) {
    try {
      PutToken(pobjPlace);
    } catch (const Error& error) {
      EXPECT_THAT(error.Description, HasSubstr("\"T"));
      return error.Number;
    } catch (const std::runtime_error& error) {
      ADD_FAILURE() << error.what();
    }
    return 0;
  }
  void ExpectStopsTwice(Place& pobjPlace) {
    EXPECT_EQ(ErrorOf(pobjPlace), vntErrOutOfStack);
    ExpectConsistent(*Host.Net);
    const auto made = Host.Net->Tokens.Count();
    EXPECT_GT(made, 1000);
    CleanUp(*Host.Net);
    EXPECT_EQ(ErrorOf(pobjPlace), vntErrOutOfStack);
    EXPECT_EQ(Host.Net->Tokens.Count(), 2 * made);
    ExpectConsistent(*Host.Net);
    CleanUp(*Host.Net);
  }

  TestHost Host;
  MessageRecorder Messages;
  int mAdded = 0;
  std::vector<Subscription> mLimits;
};

TEST_F(Loop, SelfLoopEndsInAnErrorAndCanBeStartedAfresh) { ExpectStopsTwice(*MakeRing(*Host.Net, 1).First); }

TEST_F(Loop, RingOfTenEndsInAnErrorAndCanBeStartedAfresh) { ExpectStopsTwice(*MakeRing(*Host.Net, 10).First); }

TEST_F(Loop, CaseTrackingDoesNotSwallowTheError) {
  Host.Net->CaseTracking = true;
  ExpectStopsTwice(*MakeRing(*Host.Net, 3).First);
}

TEST_F(Loop, RingOverASubflowEndsInAnErrorAndCanBeStartedAfresh) {
  const auto ring = MakeRing(*Host.Net, 2);
  const auto subflow = MakeSubflow(false);
  ring.Transitions[1]->Object(subflow);
  ExpectStopsTwice(*ring.First);
  ExpectConsistent(*subflow);
}

TEST_F(Loop, SelfLoopOverASubflowWhoseStartIsItsEndEndsInAnError) {
  const auto ring = MakeRing(*Host.Net, 1);
  const auto subflow = MakeSubflow(true);
  ring.Transitions[0]->Object(subflow);
  LimitTokensOf(*subflow);
  EXPECT_EQ(ErrorOf(*ring.First), vntErrOutOfStack);
}

TEST_F(Loop, RingOfEmbeddingUserTransitionsEndsInAMessage) {
  const auto ring = MakeRing(*Host.Net, 2);
  for (const auto& transition : ring.Transitions) {
    transition->TriggerType(vntUser);
    transition->Object(MakeSubflow(true));
  }
  PutToken(*ring.First);

  EXPECT_NO_THROW(Host.Net->FireNext());

  ASSERT_EQ(Messages.Texts.size(), 1U);
  EXPECT_THAT(Messages.Texts[0], HasSubstr("\"T"));
  EXPECT_GT(Host.Net->Tokens.Count(), 1000);
}

TEST_F(Loop, RingOfTenOverSubflowsOfTwoStepsEndsInAnError) {
  const auto ring = MakeRing(*Host.Net, 10);
  for (const auto& transition : ring.Transitions) {
    const auto subflow = MakeSubflow(false);
    const auto more = AddTransition(*subflow);
    Connect(subflow->Places.Last(), more);
    subflow->EndPlace(AddPlace(*subflow));
    Connect(more, subflow->Places.Last());
    more->TriggerType(vntAutomatic);
    transition->Object(subflow);
  }
  EXPECT_EQ(ErrorOf(*ring.First), vntErrOutOfStack);
  ExpectConsistent(*Host.Net);
}

TEST_F(Loop, TokensWorkedOffInsideOneAnotherAreNoLoop) {
  const auto chain = MakeRing(*Host.Net, 2, false);
  for (const auto& transition : chain.Transitions) {
    transition->TriggerType(vntUser);
    transition->Object(MakeSubflow(true));
  }
  for (int i = 0; i < 12'000; ++i) PutToken(*chain.First);

  Host.Net->FireNext();

  EXPECT_TRUE(Messages.Texts.empty());
  EXPECT_EQ(Host.Net->Places.Last()->Tokens().Count(), 12'000);
}

TEST_F(Loop, ManyOpenRunsDeliverEachOnce) {
  constexpr int kRuns = 4'000;
  for (const auto selection : {vntSelectionTypeFIFO, vntSelectionTypeLIFO}) {
    const auto chain = MakeRing(*Host.Net, 1, false);
    const auto done = Host.Net->Places.Last();
    const auto subflow = MakeSubflow(false);
    const auto gate = AddPlace(*subflow);
    Connect(gate, subflow->Transitions.First());
    chain.Transitions[0]->Object(subflow);
    chain.Transitions[0]->TriggerType(vntMessage);
    chain.First->SelectionType = selection;
    for (int i = 0; i < kRuns; ++i) PutToken(*chain.First);

    for (int i = 0; i < kRuns; ++i) chain.Transitions[0]->Fire();
    EXPECT_THROW(chain.Transitions[0]->Fire(), Error);
    EXPECT_FALSE(chain.Transitions[0]->Enabled());
    for (int i = 0; i < kRuns; ++i) PutToken(*gate);

    EXPECT_EQ(done->Tokens().Count(), kRuns);
    EXPECT_TRUE(chain.First->Tokens().IsEmpty());
  }
}

/// Its actions put a token into the place that they are to feed.
class ActingHost final : public TestHost {
 public:
  void RunAction(Transition& pobjTransition) override {
    const auto place = Net->Places.Item(std::stoi(pobjTransition.Action));
    place->AddToken(Net->CreateToken(place));
  }
};

std::string MessageOf(Place& pobjPlace) {
  try {
    PutToken(pobjPlace);
  } catch (const Error& error) {
    return error.Description;
  }
  return {};
}

TEST(LoopOfActions, NamesItsTransitionAndALongChainIsNone) {
  ActingHost host;
  constexpr int kLength = 700;
  for (int i = 0; i <= kLength; ++i) AddPlace(*host.Net);
  for (int i = 1; i <= kLength; ++i) {
    const auto transition = AddTransition(*host.Net, "T" + std::to_string(i));
    transition->OutputType(vntProgrammed);
    transition->TriggerType(vntAutomatic);
    transition->Action = std::to_string(i + 1);
    Connect(host.Net->Places.Item(i), transition);
  }
  EXPECT_EQ(MessageOf(*host.Net->Places.First()), "");
  EXPECT_EQ(host.Net->Places.Last()->Tokens().Count(), 1);

  host.Net->Transitions.Last()->Action = "699";
  EXPECT_THAT(MessageOf(*host.Net->Places.Item(699)), testing::StartsWith("Transition \"T"));
}

TEST(DeepNesting, IsReleasedWithoutDepth) {
  auto innermost = std::make_shared<Workflow>();
  const Ref<Workflow> dead = innermost;
  auto outer = std::move(innermost);
  for (int depth = 0; depth < 30'000; ++depth) {
    auto around = std::make_shared<Workflow>();
    auto transition = std::make_shared<Transition>();
    transition->Object(std::exchange(outer, nullptr));
    around->Transitions.Add(transition);
    outer = std::move(around);
  }
  outer.reset();
  EXPECT_FALSE(dead);
}

TEST_F(Loop, FireNextIntoALoopShowsOneMessageAndKeepsWhatWasMade) {
  const auto ring = MakeRing(*Host.Net, 2);
  const auto gate = AddPlace(*Host.Net);
  const auto start = AddTransition(*Host.Net);
  Connect(gate, start);
  Connect(start, ring.First);
  PutToken(*gate);

  Host.Net->FireNext();

  ASSERT_EQ(Messages.Texts.size(), 1U);
  EXPECT_THAT(Messages.Texts[0], HasSubstr("\"T"));
  EXPECT_EQ(gate->Tokens().Count(), 1);
  EXPECT_FALSE(gate->Tokens().First()->ConsumeTransition);
  EXPECT_GT(Host.Net->Tokens.Count(), 1000);
  ExpectConsistent(*Host.Net);
}

TEST_F(Loop, StraightChainOfAHundredThousandFiresToItsEnd) {
  const auto chain = MakeRing(*Host.Net, 100'000, false);

  const auto token = PutToken(*chain.First);

  EXPECT_EQ(Host.Net->Places.Last()->Tokens().Count(), 1);
  EXPECT_EQ(Host.Net->Tokens.Count(), 100'001);
  EXPECT_EQ(token->ConsumeTransition, chain.Transitions.front());
  EXPECT_TRUE(Host.Net->FiringStack.IsEmpty());
}

TEST_F(Loop, PlaceFullOfTokensIsDrainedInsideOneRemoval) {
  const auto chain = MakeRing(*Host.Net, 1, false);
  chain.Transitions[0]->TriggerType(vntUser);
  for (int i = 0; i < kMany; ++i) PutToken(*chain.First);
  chain.Transitions[0]->TriggerType(vntAutomatic);

  chain.First->RemoveToken(nullptr);

  EXPECT_TRUE(chain.First->Tokens().IsEmpty());
  EXPECT_EQ(Host.Net->Places.Last()->Tokens().Count(), kMany - 1);
  EXPECT_FALSE(chain.Transitions[0]->Enabled());
}

}  // namespace
}  // namespace vantrel::test

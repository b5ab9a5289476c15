#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

using testing::IsEmpty;

// Start -> first -> Mid -> second -> End, all automatic.
std::shared_ptr<Workflow> MakeTwoStepSubflow() {
  auto workflow = std::make_shared<Workflow>();
  const auto start = AddPlace(*workflow), middle = AddPlace(*workflow), end = AddPlace(*workflow);
  const auto first = AddTransition(*workflow), second = AddTransition(*workflow);
  Connect(start, first);
  Connect(first, middle);
  Connect(middle, second);
  Connect(second, end);
  for (const auto& transition : {first, second}) transition->TriggerType(vntAutomatic);
  workflow->StartPlace = start;
  workflow->EndPlace(end);
  return workflow;
}

// Left, Right -> Join -> Out.
class TokenUse : public testing::Test {
 protected:
  TokenUse() {
    Connect(Left, Join);
    Connect(Right, Join);
    Connect(Join, Out);
  }
  bool Waits(const std::shared_ptr<Transition>& pobjTransition) const { return Host.Net->FiringStack.Contains(pobjTransition->Key); }

  class QuestionHost final : public TestHost {
   public:
    std::optional<std::string> SelectOption(const std::string& pstrPrompt, const std::vector<std::string>& pcolOptions) override {
      if (OnQuestion) OnQuestion();
      return TestHost::SelectOption(pstrPrompt, pcolOptions);
    }
    std::function<void()> OnQuestion;
  };
  QuestionHost Host;
  MessageRecorder Messages;
  std::shared_ptr<Place> Left = AddPlace(*Host.Net), Right = AddPlace(*Host.Net), Out = AddPlace(*Host.Net);
  std::shared_ptr<Transition> Join = AddTransition(*Host.Net, "Join");
};

TEST_F(TokenUse, AutomaticJoinTakesAPartnerOnce) {
  Join->TriggerType(vntAutomatic);
  for (int i = 0; i < 3; ++i) PutToken(*Left);

  EXPECT_NO_THROW(PutToken(*Right));

  EXPECT_EQ(Out->Tokens().Count(), 1);
  EXPECT_EQ(Left->Tokens().Count(), 2);
  EXPECT_FALSE(Join->Enabled());
}

TEST_F(TokenUse, AutomaticJoinOfCasesTakesAPartnerOnce) {
  Host.Net->CaseTracking = true;
  Join->TriggerType(vntAutomatic);
  const auto a = NewCase("A");
  for (int i = 0; i < 3; ++i) PutToken(*Left, a);

  EXPECT_NO_THROW(PutToken(*Right, a));

  EXPECT_EQ(Out->Tokens().Count(), 1);
  EXPECT_EQ(Left->Tokens().Count(), 2);
}

TEST_F(TokenUse, WorkflowThatTwoTransitionsEmbedFinishesEachRunOnce) {
  const auto sub = MakeTwoStepSubflow();
  const auto one = AddPlace(*Host.Net), two = AddPlace(*Host.Net), three = AddPlace(*Host.Net);
  const auto first = AddTransition(*Host.Net), second = AddTransition(*Host.Net);
  Connect(one, first);
  Connect(first, two);
  Connect(two, second);
  Connect(second, three);
  for (const auto& transition : {first, second}) transition->Object(sub);
  int finished = 0;
  const auto listening = sub->OnCaseFinished.Connect([&](const auto&) { ++finished; });
  PutToken(*one);

  Host.Net->FireNext();

  EXPECT_EQ(sub->Tokens.Count(), 6);
  EXPECT_EQ(finished, 2);
  EXPECT_EQ(three->Tokens().Count(), 1);
  EXPECT_TRUE(one->Tokens().IsEmpty());
  EXPECT_TRUE(two->Tokens().IsEmpty());
}

TEST_F(TokenUse, FireNextProcessesAllThatWaitsAtASynchronousSubflow) {
  const auto sub = MakeTwoStepSubflow();
  const auto waiting = AddPlace(*Host.Net), done = AddPlace(*Host.Net);
  const auto embedding = AddTransition(*Host.Net);
  Connect(waiting, embedding);
  Connect(embedding, done);
  embedding->Object(sub);
  for (int i = 0; i < 3; ++i) PutToken(*waiting);

  Host.Net->FireNext();

  EXPECT_EQ(done->Tokens().Count(), 3);
  EXPECT_TRUE(waiting->Tokens().IsEmpty());
  EXPECT_TRUE(Host.Net->FiringStack.IsEmpty());
  EXPECT_THAT(Messages.Texts, IsEmpty());
}

TEST_F(TokenUse, TokenOfAnOpenQuestionEnablesNobodyUntilItIsCalledOff) {
  const auto asking = AddTransition(*Host.Net, "Asking");
  Connect(Left, asking);
  Connect(asking, Out)->Guard("yes");
  asking->OutputType(vntSelect);
  Join->TriggerType(vntAutomatic);
  PutToken(*Left);
  bool joinedMeanwhile = true;
  Host.OnQuestion = [&] {
    PutToken(*Right);
    joinedMeanwhile = Join->Enabled();
  };

  asking->Fire();

  EXPECT_FALSE(joinedMeanwhile);
  EXPECT_EQ(Out->Tokens().Count(), 1);
  EXPECT_TRUE(Left->Tokens().IsEmpty());
  EXPECT_FALSE(asking->Enabled());
}

TEST_F(TokenUse, TokenOfACaseThatComesFreeEnablesWhatItsPartnerCouldNot) {
  Host.Net->CaseTracking = true;
  const auto asking = AddTransition(*Host.Net, "Asking");
  const auto a = NewCase("A"), b = NewCase("B");
  Connect(Left, asking);
  Connect(asking, Out)->Guard("yes");
  asking->OutputType(vntSelect);
  asking->TriggerType(vntMessage);
  PutToken(*Left, a);
  Host.OnQuestion = [&] {
    PutToken(*Right, b);
    PutToken(*Right, a);
  };

  asking->Fire(a);

  EXPECT_TRUE(Join->Enabled());
  EXPECT_TRUE(Waits(Join));
}

TEST_F(TokenUse, ChosenTokenTakenAwayByHandLeavesTheOthersToTheFiring) {
  const auto token = PutToken(*Left), other = PutToken(*Right);
  const auto listening = Host.Net->OnTokenAdded.Connect([&](const auto& place, const auto&) {
    if (place != Out) return;
    Left->RemoveToken(token);
    Left->AddToken(token);
  });

  Host.Net->FireNext(Join);

  EXPECT_EQ(Left->Tokens().First(), token);
  EXPECT_FALSE(token->ConsumeTransition);
  EXPECT_EQ(other->ConsumeTransition, Join);
  EXPECT_THAT(Messages.Texts, IsEmpty());
}

/// How a firing ends early, and whether cases are tracked.
struct EarlyEnd {
  const char* Name;
  OutputTypes Output;
  bool CaseTracking = false;
  std::optional<std::string> Answer = std::nullopt;
};

class EndsEarly : public TokenUse, public testing::WithParamInterface<EarlyEnd> {};

TEST_P(EndsEarly, AndWaitsBehindTheOthers) {
  Host.Net->CaseTracking = GetParam().CaseTracking;
  const auto a = NewCase("A");
  Join->OutputType(GetParam().Output);
  Join->OutArcs.First()->Guard("yes");
  if (GetParam().Answer) Host.Answers.push_back(GetParam().Answer);
  const auto left = PutToken(*Left, a), right = PutToken(*Right, a);
  const auto other = AddTransition(*Host.Net);
  Connect(Left, other);
  other->Enabled(true);

  Host.Net->FireNext();

  EXPECT_TRUE(Join->Enabled());
  ASSERT_EQ(Host.Net->FiringStack.Count(), 2);
  EXPECT_EQ(Host.Net->FiringStack.Last(), Join);
  Join->OutputType(vntBroadcast);
  Host.Answers = {"A"};
  Host.Net->FireNext(Join);
  EXPECT_EQ(Out->Tokens().Count(), 1);
  EXPECT_EQ(left->ConsumeTransition, Join);
  EXPECT_EQ(right->ConsumeTransition, Join);
}

INSTANTIATE_TEST_SUITE_P(, EndsEarly,
                         testing::Values(EarlyEnd{"OutputCalledOff", vntSelect}, EarlyEnd{"WrongAnswer", vntSelect, false, "maybe"},
                                         EarlyEnd{"Distribute", vntDistribute}, EarlyEnd{"MissingAction", vntProgrammed},
                                         EarlyEnd{"CaseCalledOff", vntBroadcast, true},
                                         EarlyEnd{"DistributeOfACase", vntDistribute, true, "A"},
                                         EarlyEnd{"MissingActionOfACase", vntProgrammed, true, "A"}),
                         [](const auto& end) { return std::string(end.param.Name); });

/// The place has as many tokens of other cases.
class ChangedByHand : public TokenUse, public testing::WithParamInterface<int> {
 protected:
  ChangedByHand() {
    Host.Net->CaseTracking = true;
    for (int i = 0; i < GetParam(); ++i) PutToken(*Left, NewCase("Other" + std::to_string(i)));
  }
  const std::shared_ptr<WorkCase> A = NewCase("A"), B = NewCase("B");
};

TEST_P(ChangedByHand, MarkCounts) {
  for (const bool byField : {false, true}) {
    SCOPED_TRACE(byField);
    const auto left = PutToken(*Left, A), right = PutToken(*Right, B), more = PutToken(*Right, B);
    EXPECT_FALSE(Join->Enabled());
    for (const auto& token : {left, right}) {
      byField ? void(token->mblnCaseEnabled = true) : token->CaseEnabled(true);
    }

    Right->RemoveToken(more);
    EXPECT_TRUE(Join->Enabled());
    left->mblnCaseEnabled = false;
    Right->RemoveToken(right);
    EXPECT_FALSE(Join->Enabled());
    EXPECT_FALSE(Left->CaseEnabled());
    Left->RemoveToken(left);
  }
}

TEST_P(ChangedByHand, CaseCounts) {
  const auto left = PutToken(*Left, A);
  PutToken(*Right, B);
  left->WorkCase = B;
  const auto again = PutToken(*Right, B);
  EXPECT_TRUE(Join->Enabled());
  left->WorkCase = A;
  Host.Answers = {"B"};
  Join->Fire();
  EXPECT_TRUE(Out->Tokens().IsEmpty() || Out->Tokens().First()->WorkCase != A);
  EXPECT_EQ(left->WorkCase, A);
  EXPECT_EQ(Left->Tokens().Last(), left);
}

TEST_P(ChangedByHand, CopyOfACaseLinkIsAValue) {
  const auto left = PutToken(*Left, A);
  auto copy = left->WorkCase;
  copy = B;
  EXPECT_EQ(left->WorkCase, A);
  EXPECT_EQ(copy, B);
}

INSTANTIATE_TEST_SUITE_P(, ChangedByHand, testing::Values(9, 63, 200), testing::PrintToStringParamName());

/// A picture whose painting calls a host.
class Repaint : public TokenUse {
 protected:
  Repaint() {
    for (auto* node : std::initializer_list<Node*>{Left.get(), Right.get(), Join.get()}) {
      GiveElements(*node);
      node->Visible(true);
    }
    mWatching = Host.Surface.OnDamaged.Connect([this](const auto&) {
      if (!mAnswer) return;
      const auto answer = std::exchange(mAnswer, nullptr);
      answer();
    });
  }
  void Answer(std::function<void()> pAnswer) { mAnswer = std::move(pAnswer); }

 private:
  std::function<void()> mAnswer;
  Subscription mWatching;
};

// A token added to its new place before it leaves the old one.
TEST_F(TokenUse, MovedTokenCountsInItsNewPlaceAloneAtEverySize) {
  const auto here = AddTransition(*Host.Net), there = AddTransition(*Host.Net);
  Connect(Left, here);
  Connect(Right, there);
  for (const auto& transition : {here, there}) {
    transition->TriggerType(vntMessage);
    Connect(transition, Out);
  }
  Host.Net->CaseTracking = true;
  const auto a = NewCase("A"), others = NewCase("B");
  for (const int crowd : {5, 70}) {
    SCOPED_TRACE(crowd);
    const auto first = PutToken(*Left, a);
    PutToken(*Left, a);
    for (int i = 0; i < crowd; ++i) {
      PutToken(*Left, others);
      PutToken(*Right, others);
    }
    Right->AddToken(first);
    Left->RemoveToken(first);

    here->Fire(a);
    EXPECT_EQ(Left->Tokens().Count(), crowd);
    there->Fire(a);
    EXPECT_EQ(Right->Tokens().Count(), crowd);
    for (const auto& place : {Left, Right}) {
      while (!place->Tokens().IsEmpty()) place->RemoveToken(nullptr);
    }
  }
}

TEST_F(Repaint, AnsweredWithRemovalsLeavesNothingDisabledOnTheStack) {
  for (const bool tracking : {false, true}) {
    SCOPED_TRACE(tracking);
    Host.Net->CaseTracking = tracking;
    const auto a = NewCase("A");
    for (int i = 0; i < 70; ++i) PutToken(*Left, a);
    Answer([&] {
      while (!Left->Tokens().IsEmpty()) Left->RemoveToken(nullptr);
    });
    PutToken(*Right, a);
    EXPECT_TRUE(Left->Tokens().IsEmpty());
    EXPECT_FALSE(Join->Enabled());
    EXPECT_FALSE(Waits(Join));
    Right->RemoveToken(nullptr);
  }
}

}  // namespace
}  // namespace vantrel::test

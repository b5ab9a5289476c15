#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

std::string TagOf(const Workflow& pobjNet, int plngToken) { return pobjNet.Tokens.Item(plngToken)->Tag; }

// In, Side -> T -> Out, Copy and In -> Rival -> Loot. T embeds a net that waits in Mid until Finish is called; Spare holds a second token
// of the run, which Straggle brings to the end place.
class SubflowRun : public testing::Test {
 protected:
  SubflowRun() {
    T->TriggerType(vntMessage);
    Rival->TriggerType(vntMessage);
    T->Object(Sub);
    Connect(In, T);
    Connect(T, Out);
    Connect(T, Copy);
    Connect(In, Rival);
    Connect(Rival, Loot);
    const auto begin = AddPlace(*Sub), gate = AddPlace(*Sub), lateGate = AddPlace(*Sub);
    const auto split = AddTransition(*Sub), end = AddTransition(*Sub), late = AddTransition(*Sub);
    for (const auto& transition : {split, end, late}) transition->TriggerType(transition == split ? vntAutomatic : vntMessage);
    Connect(begin, split);
    Connect(split, Mid);
    Connect(split, Spare);
    Connect(Mid, end);
    Connect(gate, end);
    Connect(end, Done);
    Connect(Spare, late);
    Connect(lateGate, late);
    Connect(late, Done);
    Sub->StartPlace = begin;
    Sub->EndPlace(Done);
    Finish = [=](const std::shared_ptr<WorkCase>& workCase) {
      PutToken(*gate, workCase);
      end->Fire(workCase);
    };
    Straggle = [=] {
      PutToken(*lateGate);
      late->Fire();
    };
  }

  std::string OutTags() const {
    std::string tags;
    for (const auto& token : Out->Tokens()) tags += token->Tag;
    return tags;
  }
  std::shared_ptr<Token> PutTagged(const std::string& pstrTag, const std::shared_ptr<WorkCase>& pobjCase = nullptr) {
    auto token = Host.Net->CreateToken(In, nullptr, pobjCase);
    token->Tag = pstrTag;
    In->AddToken(token);
    return token;
  }
  void PassTagsOn() {
    mTagging = Sub->OnTokenAdded.Connect([this](const auto& place, const auto& token) {
      if (place == Done) token->Tag = "x";
    });
  }

  TestHost Host;
  MessageRecorder Messages;
  std::shared_ptr<Workflow> Sub = std::make_shared<Workflow>();
  std::shared_ptr<Place> In = AddPlace(*Host.Net), Side = AddPlace(*Host.Net), Out = AddPlace(*Host.Net), Copy = AddPlace(*Host.Net);
  std::shared_ptr<Place> Loot = AddPlace(*Host.Net), Mid = AddPlace(*Sub), Spare = AddPlace(*Sub), Done = AddPlace(*Sub);
  std::shared_ptr<Transition> T = AddTransition(*Host.Net, "T"), Rival = AddTransition(*Host.Net, "Rival");
  std::function<void(const std::shared_ptr<WorkCase>&)> Finish;
  std::function<void()> Straggle;
  Subscription mTagging;
};

TEST_F(SubflowRun, TakenTokenWaitsForNobodyElseAndLeavesAtTheEnd) {
  const auto token = PutTagged("a");
  Host.Net->FireNext(T);

  EXPECT_EQ(In->Tokens().Count(), 1);
  EXPECT_EQ(Mid->Tokens().First()->Place, Mid);
  EXPECT_FALSE(T->Enabled());
  EXPECT_FALSE(Rival->Enabled());
  EXPECT_TRUE(Host.Net->FiringStack.IsEmpty());
  EXPECT_THROW(Rival->Fire(), Error);
  EXPECT_FALSE(token->ConsumeTransition);

  Finish(nullptr);

  EXPECT_EQ(Out->Tokens().Count(), 1);
  EXPECT_TRUE(In->Tokens().IsEmpty());
  EXPECT_EQ(token->ConsumeTransition, T);
  EXPECT_FALSE(token->DateConsumed.IsZero());
  EXPECT_TRUE(Messages.Texts.empty());
}

TEST_F(SubflowRun, AnotherTokenOfTheSamePlaceIsLeftToRivals) {
  PutTagged("a");
  T->Fire();
  const auto second = PutTagged("b");

  EXPECT_TRUE(Rival->Enabled());
  Rival->Fire();

  EXPECT_EQ(second->ConsumeTransition, Rival);
  EXPECT_FALSE(T->Enabled());
  Finish(nullptr);
  EXPECT_EQ(Out->Tokens().Count(), 1);
  EXPECT_TRUE(In->Tokens().IsEmpty());
}

TEST_F(SubflowRun, TwoAnonymousRunsDeliverEachOnceForTheirOwnTokens) {
  Mid->SelectionType = vntSelectionTypeLIFO;
  const auto first = PutTagged("a"), second = PutTagged("b");
  Host.Net->FireNext(T);
  EXPECT_TRUE(T->Enabled());
  ASSERT_TRUE(Host.Net->FiringStack.Contains(T->Key));
  Host.Net->FireNext(T);
  EXPECT_EQ(TagOf(*Sub, 1) + TagOf(*Sub, 4), "ab");

  Finish(nullptr);
  EXPECT_EQ(second->ConsumeTransition, T);
  EXPECT_EQ(In->Tokens().First(), first);
  EXPECT_EQ(Out->Tokens().Count(), 1);

  Finish(nullptr);
  EXPECT_EQ(first->ConsumeTransition, T);
  EXPECT_TRUE(In->Tokens().IsEmpty());
  EXPECT_EQ(Out->Tokens().Count(), 2);
}

TEST_F(SubflowRun, RunsOfTwoCasesKeepTheirCases) {
  Host.Net->CaseTracking = true;
  const auto a = NewCase("A"), b = NewCase("B");
  const auto first = PutTagged("a", a), second = PutTagged("b", b);
  T->Fire(a);
  T->Fire(b);

  Finish(b);

  EXPECT_EQ(In->Tokens().Count(), 1);
  EXPECT_EQ(second->ConsumeTransition, T);
  EXPECT_EQ(Out->Tokens().First()->WorkCase, b);
  Finish(a);
  EXPECT_EQ(first->ConsumeTransition, T);
  EXPECT_EQ(Out->Tokens().Last()->WorkCase, a);
  EXPECT_EQ(Out->Tokens().Count(), 2);
}

TEST_F(SubflowRun, LateTokenIsIgnored) {
  PutTagged("a");
  T->Fire();
  Finish(nullptr);
  PutTagged("b");
  T->Fire();

  Straggle();

  EXPECT_EQ(Out->Tokens().Count(), 1);
  EXPECT_EQ(In->Tokens().Count(), 1);
  EXPECT_TRUE(Done->Tokens().IsEmpty());
  Straggle();
  EXPECT_EQ(Out->Tokens().Count(), 2);
  EXPECT_TRUE(In->Tokens().IsEmpty());
}

TEST_F(SubflowRun, LateTokenIsIgnoredByASubflowThatKnowsItsTransition) {
  Sub->SubflowTransition = T;
  PutTagged("a");
  T->Fire();
  Straggle();
  EXPECT_EQ(Out->Tokens().Count(), 1);

  Finish(nullptr);

  EXPECT_EQ(Out->Tokens().Count(), 1);
}

TEST_F(SubflowRun, RunDeliversWhoseOnlyTokenWasTakenAwayByHand) {
  const auto token = PutTagged("a");
  T->Fire();

  In->RemoveToken(token);
  PutTagged("b");
  EXPECT_TRUE(T->Enabled());
  Finish(nullptr);

  EXPECT_EQ(Out->Tokens().Count(), 1);
  EXPECT_EQ(In->Tokens().Count(), 1);
  EXPECT_FALSE(token->ConsumeTransition);
}

TEST_F(SubflowRun, ReservedTokenTakenAwayByHandLeavesTheOthersToTheRun) {
  Connect(Side, T);
  const auto token = PutTagged("a");
  PutToken(*Side);
  T->Fire();

  In->RemoveToken(token);
  In->AddToken(token);
  Rival->Fire();
  Finish(nullptr);

  EXPECT_EQ(token->ConsumeTransition, Rival);
  EXPECT_EQ(Out->Tokens().Count(), 1);
  EXPECT_TRUE(Side->Tokens().IsEmpty());
}

TEST_F(SubflowRun, UnsetSubflowTransitionDeliversOneByOneThenFiresNext) {
  const auto early = AddTransition(*Host.Net), waiting = AddTransition(*Host.Net);
  Connect(Out, early);
  Connect(early, Loot);
  early->TriggerType(vntAutomatic);
  Connect(Side, waiting);
  Connect(waiting, Loot);
  PassTagsOn();
  PutTagged("a");
  T->Fire();
  PutToken(*Side);
  int finished = 0;
  const auto listening = Sub->OnCaseFinished.Connect([&](const auto&) { ++finished; });

  Finish(nullptr);

  EXPECT_EQ(finished, 1);
  EXPECT_EQ(Copy->Tokens().First()->Key, "Token5");
  EXPECT_EQ(TagOf(*Host.Net, 5), "x");
  EXPECT_TRUE(Side->Tokens().IsEmpty());
  EXPECT_EQ(Loot->Tokens().Count(), 2);
}

TEST_F(SubflowRun, SetSubflowTransitionMakesAllOutputInTheShownWorkflowBeforeAddingAny) {
  const auto shown = std::make_shared<Workflow>();
  gobjWorkflow = shown;
  Sub->SubflowTransition = T;
  PassTagsOn();
  const auto token = PutTagged("a");
  T->Fire();
  PutToken(*Side);
  int finished = 0, madeBeforeTheFirst = 0;
  const auto listening = Sub->OnCaseFinished.Connect([&](const auto&) { ++finished; });
  const auto counting = Host.Net->OnTokenAdded.Connect([&](const auto& place, const auto&) {
    if (place == Out) madeBeforeTheFirst = shown->Tokens.Count();
  });

  Finish(nullptr);

  EXPECT_EQ(finished, 0);
  EXPECT_EQ(madeBeforeTheFirst, 2);
  EXPECT_EQ(OutTags(), "x");
  EXPECT_EQ(Out->Tokens().First()->CreateTransition, T);
  EXPECT_EQ(Copy->Tokens().First()->Key, "Token2");
  EXPECT_EQ(token->ConsumeTransition, T);
  EXPECT_TRUE(In->Tokens().IsEmpty());
  EXPECT_EQ(Side->Tokens().Count(), 1);
}

TEST_F(SubflowRun, FailedDeliveryLeavesNoTokenReserved) {
  PutTagged("a");
  T->Fire();
  {
    const auto failing = Host.Net->OnTokenAdded.Connect([](const auto&, const auto&) { throw Error(vntErrTypeMismatch); });
    EXPECT_THROW(Finish(nullptr), Error);
  }

  EXPECT_NO_THROW(Rival->Fire());
  EXPECT_TRUE(In->Tokens().IsEmpty());
}

TEST_F(SubflowRun, TransitionThatDiesFreesWhatItsRunHadTaken) {
  PutTagged("a");
  T->Fire();
  Host.Net->FiringStack.Clear();
  Host.Net->Transitions.Remove(T->Key);
  T.reset();

  EXPECT_NO_THROW(Rival->Fire());
  EXPECT_NO_THROW(Finish(nullptr));
  EXPECT_TRUE(Out->Tokens().IsEmpty());
}

TEST_F(SubflowRun, RemovedTransitionLeavesItsTokensToOthers) {
  PutTagged("a");
  T->Fire();
  ASSERT_FALSE(Rival->Enabled());

  Host.Net->Remove(T);

  EXPECT_TRUE(Rival->Enabled());
  EXPECT_TRUE(Host.Net->FiringStack.Contains(Rival->Key));
  EXPECT_FALSE(Host.Net->FiringStack.Contains(T->Key));
  EXPECT_NO_THROW(Finish(nullptr));
  EXPECT_TRUE(Out->Tokens().IsEmpty());
}

TEST_F(SubflowRun, SubflowWithoutStartPlaceIsReportedAndReservesNothing) {
  Sub->StartPlace = nullptr;
  PutTagged("a");

  Host.Net->FireNext(T);

  EXPECT_EQ(Messages.Texts, std::vector<std::string>{"The workflow in transition \"T\" has no start place."});
  EXPECT_NO_THROW(Rival->Fire());
}

}  // namespace
}  // namespace vantrel::test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

using testing::ElementsAre;

// From -T-> To1, To2, in a workflow with no other owner.
class Listener : public testing::Test {
 protected:
  Listener() {
    From = AddPlace(*Net, "From");
    To1 = AddPlace(*Net, "To1");
    To2 = AddPlace(*Net, "To2");
    T = AddTransition(*Net, "T");
    Connect(From, T);
    Connect(T, To1);
    Connect(T, To2);
  }
  template <class Reaction>
  void When(const char* pstrPlace, Reaction pReaction) {
    mListening = Net->OnTokenAdded.Connect([=](const auto& place, const auto& token) {
      if (place->Name() == pstrPlace) pReaction(token);
    });
  }
  void Take(const std::shared_ptr<Transition>& pobjTransition) {
    Net->FiringStack.Clear();
    Net->Transitions.Remove(pobjTransition->Key);
    for (const auto& arc : Net->Arcs) {
      arc->Place->InArcs.Clear();
      arc->Place->OutArcs.Clear();
    }
    pobjTransition->InArcs.Clear();
    pobjTransition->OutArcs.Clear();
    Net->Arcs.Clear();
    Net->Vectors.Clear();
  }
  void LetGo() {
    T.reset();
    From = To1 = To2 = nullptr;
    Net.reset();
  }

  TestHost Host;
  MessageRecorder Messages;
  std::shared_ptr<Workflow> Net = std::make_shared<Workflow>();
  std::shared_ptr<Place> From, To1, To2;
  std::shared_ptr<Transition> T;
  Subscription mListening;
};

TEST_F(Listener, TokensAddedInsideAnEventPlayTheirGameBeforeTheFiringGoesOn) {
  const auto echo = AddTransition(*Net);
  const auto side = AddPlace(*Net), end = AddPlace(*Net);
  Connect(side, echo);
  Connect(echo, end);
  echo->TriggerType(vntAutomatic);
  std::vector<int> seen;
  When("To1", [&](const auto&) {
    PutToken(*side);
    seen = {end->Tokens().Count(), To2->Tokens().Count(), From->Tokens().Count()};
  });
  PutToken(*From);

  Net->FireNext();

  EXPECT_THAT(seen, ElementsAre(1, 0, 1));
  EXPECT_EQ(To2->Tokens().Count(), 1);
  EXPECT_TRUE(From->Tokens().IsEmpty());
}

TEST_F(Listener, AddingInAnswerToAddingWithoutEndIsStoppedAndTheGameGoesOn) {
  When("To1", [&](const auto&) { PutToken(*To1); });
  PutToken(*From);

  Net->FireNext();

  EXPECT_EQ(Messages.Texts.size(), 1U);
  EXPECT_EQ(To1->TokenCount(), static_cast<float>(To1->Tokens().Count()));
  mListening.Disconnect();
  T->Fire();
  EXPECT_EQ(To2->Tokens().Count(), 1);
  EXPECT_TRUE(From->Tokens().IsEmpty());
}

TEST_F(Listener, FireNextInsideAnEventNeverThrows) {
  const auto loop = AddTransition(*Net, "Loop");
  const auto ring = AddPlace(*Net), gate = AddPlace(*Net);
  const auto into = AddTransition(*Net);
  loop->TriggerType(vntAutomatic);
  Connect(ring, loop);
  Connect(loop, ring);
  Connect(gate, into);
  Connect(into, ring);
  PutToken(*gate);
  When("To1", [&](const auto&) { EXPECT_NO_THROW(Net->FireNext(into)); });
  PutToken(*From);

  Net->FireNext(T);

  EXPECT_EQ(Messages.Texts.size(), 1U);
  EXPECT_EQ(To2->Tokens().Count(), 1);
}

TEST_F(Listener, ConsumedTokenRemovedMeanwhileEndsTheFiringQuietly) {
  When("To1", [&](const auto&) { From->RemoveToken(nullptr); });
  const auto token = PutToken(*From);

  Net->FireNext();

  EXPECT_TRUE(Messages.Texts.empty());
  EXPECT_TRUE(token->DateConsumed.IsZero());
  EXPECT_EQ(To2->Tokens().Count(), 1);
  EXPECT_FALSE(T->Enabled());
}

TEST_F(Listener, TransitionDeletedWhileItProducesStillConsumes) {
  const Ref<Transition> dead = T;
  When("To1", [&](const auto&) {
    Take(T);
    T.reset();
  });
  const auto token = PutToken(*From);

  Net->FireNext();

  EXPECT_FALSE(dead);
  EXPECT_TRUE(From->Tokens().IsEmpty());
  EXPECT_FALSE(token->DateConsumed.IsZero());
}

TEST_F(Listener, PlacesDeletedWhileTheirTokensMoveDoNotBringTheGameDown) {
  T->TriggerType(vntAutomatic);
  When("To1", [&](const auto&) {
    for (auto* place : {&From, &To1, &To2}) {
      Net->Places.Remove((*place)->Key);
      place->reset();
    }
  });

  try {
    PutToken(*From);
  } catch (const Error& error) {
    EXPECT_EQ(error.Number, vntErrObjectNotSet);
  }
  EXPECT_TRUE(Net->Places.IsEmpty());
}

TEST_F(Listener, LastReferenceToTheWorkflowDroppedWhileATokenArrives) {
  const Ref<Workflow> dead = Net;
  When("From", [&](const auto&) { LetGo(); });

  PutToken(*From);

  EXPECT_FALSE(dead);
}

TEST_F(Listener, LastReferenceToTheWorkflowDroppedWhileATransitionFires) {
  const Ref<Workflow> dead = Net;
  When("To1", [&](const auto&) { LetGo(); });
  PutToken(*From);

  Net->FireNext();

  EXPECT_FALSE(dead);
}

TEST_F(Listener, LastReferenceToTheWorkflowDroppedWhileACaseStarts) {
  const Ref<Workflow> dead = Net;
  When("From", [&](const auto&) { LetGo(); });

  Net->z_StartCase(nullptr);

  EXPECT_FALSE(dead);
}

TEST_F(Listener, LastReferenceToASubflowDroppedWhenItsCaseEnds) {
  auto sub = std::make_shared<Workflow>();
  const Ref<Workflow> dead = sub;
  const auto end = AddPlace(*sub);
  sub->StartPlace = end;
  sub->EndPlace(end);
  T->Object(sub);
  PutToken(*From);
  const auto listening = sub->OnCaseFinished.Connect([&](const auto&) {
    T->Object(nullptr);
    T->Subflow(nullptr);
  });
  sub.reset();

  Net->FireNext();

  EXPECT_FALSE(dead);
  EXPECT_EQ(To1->Tokens().Count(), 1);
}

}  // namespace
}  // namespace vantrel::test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

using testing::ElementsAre;

class FireNext : public testing::Test {
 protected:
  FireNext() {
    Connect(From, T);
    Connect(T, To);
    PutToken(*From);
  }

  TestHost Host;
  MessageRecorder Messages;
  std::shared_ptr<Place> From = AddPlace(*Host.Net), To = AddPlace(*Host.Net);
  std::shared_ptr<Transition> T = AddTransition(*Host.Net);
};

TEST_F(FireNext, StepTestFiresAfterOk) {
  gintUseMode = vntStepTest;

  Host.Net->FireNext();

  EXPECT_THAT(Messages.Texts, ElementsAre("Fire next?"));
  EXPECT_THAT(Messages.Titles, ElementsAre("Step Testing"));
  EXPECT_EQ(To->Tokens().Count(), 1);
  EXPECT_TRUE(Host.UseModes.empty());
}

TEST_F(FireNext, StepTestCancelledGoesToDesignAndFiresNothing) {
  gintUseMode = vntStepTest;
  Messages.Answers = {vntCancel};

  Host.Net->FireNext(T);

  EXPECT_THAT(Host.UseModes, ElementsAre(vntDesign));
  EXPECT_EQ(From->Tokens().Count(), 1);
  EXPECT_EQ(Host.Net->FiringStack.First(), T);
}

TEST_F(FireNext, AnyOtherFailureIsShownInItsOwnWords) {
  const auto failing = Host.Net->OnTokenAdded.Connect([](const auto&, const auto&) { throw Error(vntErrTypeMismatch); });

  EXPECT_NO_THROW(Host.Net->FireNext());

  EXPECT_THAT(Messages.Texts, ElementsAre("Type mismatch"));
  EXPECT_EQ(From->Tokens().Count(), 1);
}

TEST_F(FireNext, CaseTrackingPassesOverAFailingOutputAndConsumesAllTheSame) {
  Host.Net->CaseTracking = true;
  T->TriggerType(vntMessage);
  Connect(T, AddPlace(*Host.Net));
  const auto failing = Host.Net->OnTokenAdded.Connect([&](const auto& place, const auto&) {
    if (place == To) throw Error(vntErrTypeMismatch);
  });

  Host.Net->FireNext();

  EXPECT_TRUE(Messages.Texts.empty());
  EXPECT_EQ(Host.Net->Places.Last()->Tokens().Count(), 1);
  EXPECT_TRUE(From->Tokens().IsEmpty());
}

TEST_F(FireNext, ProgrammedOutputWithoutActionSaysSo) {
  T->OutputType(vntProgrammed);

  Host.Net->FireNext();

  EXPECT_THAT(Messages.Texts, ElementsAre("Programmed output must be performed by a Action."));
  EXPECT_EQ(From->Tokens().Count(), 1);
}

TEST_F(FireNext, TokenThatIsNothingIsRefusedByItsPlace) {
  EXPECT_THROW(From->AddToken(nullptr), Error);
  EXPECT_EQ(From->Tokens().Count(), 1);
}

}  // namespace
}  // namespace vantrel::test

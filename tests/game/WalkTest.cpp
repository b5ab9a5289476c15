#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

using testing::ElementsAre;

std::string WalkedTagOf(const Workflow& pobjNet, int plngToken) { return pobjNet.Tokens.Item(plngToken)->Tag; }

// Start -Receive-> Review, Stock;  Review -Check[Middle]-> Checked;  Checked, Stock -Decide-> Approved | Refused | Parked;
// Approved -Ship(programmed)-> Shipped -Archive(by hand)-> End.  Middle: First -Measure[Inner]-> Second -Inspect-> Third.
// Inner: Scale -Weigh-> Weighed.
class Walk : public testing::TestWithParam<bool> {
 protected:
  class Host final : public TestHost {
   public:
    void RunAction(Transition& pobjTransition) override {
      TestHost::RunAction(pobjTransition);
      PutToken(*Shipped, Case);
    }
    std::shared_ptr<Place> Shipped;
    std::shared_ptr<WorkCase> Case;
  };

  Walk() {
    auto& net = *mHost.Net;
    net.CaseTracking = GetParam();
    net.KeepHistory = mMiddle->KeepHistory = true;
    mHost.Case = NewCase("C");
    Step(net, "Receive", {"Start"}, {"Review", "Stock"});
    Step(net, "Check", {"Review"}, {"Checked"})->Object(mMiddle);
    Step(net, "Decide", {"Checked", "Stock"}, {"Approved", "Refused", "Parked"});
    Step(net, "Ship", {"Approved"}, {"Shipped"});
    Step(net, "Archive", {"Shipped"}, {"End"});
    Step(*mMiddle, "Measure", {"First"}, {"Second"})->Object(mInner);
    Step(*mMiddle, "Inspect", {"Second"}, {"Third"});
    Step(*mInner, "Weigh", {"Scale"}, {"Weighed"});
    SetEnds(net, "Start", "End");
    SetEnds(*mMiddle, "First", "Third");
    SetEnds(*mInner, "Scale", "Weighed");
    SetTypes();
    mHost.Shipped = At("Shipped");
    mHost.OnSelectTokens = [this](Transition& transition) { ArchiveByHand(transition); };
    for (const auto& workflow : {mHost.Net, mMiddle, mInner}) Listen(*workflow);
  }

  void SetTypes() {
    Do("Decide").TriggerType(vntMessage);
    Do("Decide").OutputType(vntSelect);
    At("Approved")->InArcs.First()->Guard("yes");
    At("Refused")->InArcs.First()->Guard("no");
    Do("Ship").TriggerType(vntTimed);
    Do("Ship").OutputType(vntProgrammed);
    Do("Ship").Action = "ship it";
    Do("Archive").OutputType(vntDistribute);
    Do("Measure").TriggerType(vntAutomatic);
    auto weight = std::make_shared<PropertyRecord>();
    weight->Name = "Weight";
    At("Weighed")->TokenProperties->Add(weight, "Weight");
  }

  void Listen(vantrel::Workflow& pobjWorkflow) {
    mListening.push_back(pobjWorkflow.OnTokenAdded.Connect([this](const auto& place, const auto& token) {
      mLog.push_back(place->Name() + " " + token->Key);
      if (place->Name() == "Weighed") token->SetProperty("Weight", 12);
      if (place->Name() == "Weighed") token->Tag = "weighed";
      if (place->Name() == "Third") token->Tag = "inspected";
    }));
    mListening.push_back(pobjWorkflow.OnCaseFinished.Connect([this](const auto& token) { mLog.push_back("finished " + token->Key); }));
  }

  void ArchiveByHand(Transition& pobjTransition) {
    const auto token = mHost.Shipped->Tokens().First();
    At("End")->AddToken(mHost.Net->CreateToken(At("End"), &pobjTransition, token->WorkCase));
    mHost.Shipped->RemoveToken(token);
  }

  static std::shared_ptr<Place> PlaceOf(vantrel::Workflow& pobjNet, const std::string& pstrName) {
    const auto found = FindByName(pobjNet.Places, pstrName);
    return found ? found : AddPlace(pobjNet, pstrName);
  }
  static std::shared_ptr<Transition> Step(vantrel::Workflow& pobjNet, const std::string& pstrName, const std::vector<std::string>& pFrom,
                                          const std::vector<std::string>& pTo) {
    auto transition = AddTransition(pobjNet, pstrName);
    for (const auto& name : pFrom) Connect(PlaceOf(pobjNet, name), transition);
    for (const auto& name : pTo) Connect(transition, PlaceOf(pobjNet, name));
    return transition;
  }
  static void SetEnds(vantrel::Workflow& pobjNet, const std::string& pstrStart, const std::string& pstrEnd) {
    pobjNet.StartPlace = PlaceOf(pobjNet, pstrStart);
    pobjNet.EndPlace(PlaceOf(pobjNet, pstrEnd));
  }

  template <class N>
  std::shared_ptr<N> Find(Collection<N> vantrel::Workflow::*pNodes, const std::string& pstrName) {
    for (auto* workflow : {mHost.Net.get(), mMiddle.get(), mInner.get()}) {
      if (auto found = FindByName(workflow->*pNodes, pstrName)) return found;
    }
    throw Error(vntErrElementNotFound, pstrName);
  }
  std::shared_ptr<Place> At(const std::string& pstrName) { return Find(&vantrel::Workflow::Places, pstrName); }
  Transition& Do(const std::string& pstrName) { return *Find(&vantrel::Workflow::Transitions, pstrName); }

  std::string Marking() {
    std::string marking;
    for (auto* workflow : {mHost.Net.get(), mMiddle.get(), mInner.get()}) {
      for (const auto& place : workflow->Places) {
        for (const auto& token : place->Tokens()) marking += place->Name() + ":" + token->Key + " ";
      }
    }
    return marking;
  }
  std::string Stack() {
    std::string names;
    for (const auto& transition : mHost.Net->FiringStack) names += transition->Name() + " ";
    return names;
  }
  void ExpectConsumers() {
    std::string consumers;
    for (const auto& token : mHost.Net->Tokens) {
      consumers += (token->ConsumeTransition ? token->ConsumeTransition->Name() : "-") + " ";
      EXPECT_EQ(token->ConsumeTransition == nullptr, token->DateConsumed.IsZero()) << token->Key;
      if (GetParam()) {
        EXPECT_EQ(token->WorkCase, mHost.Case) << token->Key;
      }
    }
    EXPECT_EQ(consumers, "Receive Check Decide Decide Ship - - ");
    EXPECT_EQ(mMiddle->Tokens.Item(1)->ConsumeTransition->Name(), "Measure");
    EXPECT_EQ(mMiddle->Tokens.Item(2)->ConsumeTransition->Name(), "Inspect");
    EXPECT_EQ(mInner->Tokens.Item(1)->ConsumeTransition->Name(), "Weigh");
  }
  std::vector<std::string> TakeLog() { return std::exchange(mLog, {}); }

  Host mHost;
  MessageRecorder mMessages;
  std::shared_ptr<vantrel::Workflow> mMiddle = std::make_shared<vantrel::Workflow>(), mInner = std::make_shared<vantrel::Workflow>();
  std::vector<Subscription> mListening;
  std::vector<std::string> mLog;
};

TEST_P(Walk, FromStartToEndThroughSubflowsAndAllKindsOfOutput) {
  const auto ask = [this](const char* answer) { mHost.Answers.emplace_back(answer); };
  if (GetParam()) {
    for (int question = 0; question < 4; ++question) ask("C");
  }
  mHost.Answers.emplace_back(std::nullopt);
  ask("yes");
  if (GetParam()) ask("C");

  PutToken(*At("Start"), mHost.Case);
  EXPECT_EQ(Stack(), "Receive ");
  mHost.Net->FireNext();
  EXPECT_EQ(Marking(), "Review:Token2 Stock:Token3 ");
  EXPECT_EQ(Stack(), "Check ");
  EXPECT_THAT(TakeLog(), ElementsAre("Start Token1", "Review Token2", "Stock Token3"));

  At("Review")->Tokens().First()->Tag = "order 7";
  mHost.Net->FireNext();
  EXPECT_THAT(TakeLog(), ElementsAre("Scale Token1", "Weighed Token2", "finished Token2", "Second Token2", "Third Token3",
                                     "finished Token3", "Checked Token4", "First Token1"));
  EXPECT_EQ(Marking(), "Stock:Token3 Checked:Token4 Third:Token3 ");
  EXPECT_EQ(WalkedTagOf(*mMiddle, 1), "order 7");
  EXPECT_EQ(WalkedTagOf(*mInner, 1), "order 7");
  EXPECT_EQ(WalkedTagOf(*mMiddle, 2), "weighed");
  EXPECT_EQ(mMiddle->Tokens.Item(2)->CustomProperties(), mInner->Tokens.Item(2)->CustomProperties());
  EXPECT_EQ(mMiddle->Tokens.Item(2)->CustomProperties()->Item("Weight")->Value.ToInt32(), 12);
  EXPECT_EQ(WalkedTagOf(*mHost.Net, 4), "inspected");
  EXPECT_EQ(Stack(), "Decide ");
  EXPECT_TRUE(Do("Decide").Enabled());

  const auto fired = GetParam() ? mHost.Case : nullptr;
  Do("Decide").Fire(fired);
  EXPECT_EQ(Marking(), "Approved:Token5 Third:Token3 ");
  EXPECT_EQ(mHost.Questions.back().Prompt, "Select ouputs:");
  EXPECT_THAT(mHost.Questions.back().Options, ElementsAre("yes", "no", "<other>"));

  Do("Ship").Fire(fired);
  EXPECT_THAT(mHost.Actions, ElementsAre("ship it"));
  EXPECT_EQ(Stack(), "Archive ");

  TakeLog();
  mHost.Net->FireNext();
  EXPECT_THAT(TakeLog(), ElementsAre("End Token7", "finished Token7"));
  EXPECT_EQ(Marking(), "End:Token7 Third:Token3 ");
  EXPECT_EQ(Stack(), "");
  EXPECT_TRUE(mHost.Answers.empty());
  EXPECT_TRUE(mMessages.Texts.empty());
  ExpectConsumers();
}

INSTANTIATE_TEST_SUITE_P(CaseTracking, Walk, testing::Bool());

}  // namespace
}  // namespace vantrel::test

#include "app/play/Player.h"

#include <set>

#include <gtest/gtest.h>

#include "app/SmallNets.h"

namespace vantrel {

namespace {

using test::NetOf;

const char* const kTwoBranches =
    "in>tSplit tSplit>a tSplit>b a>tA1 tA1>a2 a2>tA2 tA2>aDone b>tB1 tB1>b2 b2>tB2 tB2>bDone aDone>tJoin bDone>tJoin tJoin>out";

Account PlayNet(const PnmlNet& pobjNet, const PlayOptions& pobjOptions = {}, Player::Watch pWatch = {}) {
  PlayOptions options = pobjOptions;
  options.KeepTrace = true;
  return Player(BuildWorkflow(pobjNet), options, std::move(pWatch)).Play();
}

std::string TraceOf(const Account& pobjAccount) {
  std::string trace;
  for (const auto& firing : pobjAccount.Trace) trace += (trace.empty() ? "" : " ") + firing.Name;
  return trace;
}

std::string RandomTrace(std::uint64_t plngSeed) {
  PlayOptions options;
  options.Pick = Pick::Random;
  options.Seed = plngSeed;
  return TraceOf(PlayNet(NetOf(kTwoBranches), options));
}

/// A net whose transition tSub is a sub-process with two branches.
PnmlNet WithSubprocess() {
  PnmlNet net = NetOf("in>tSub tSub>mid mid>tLast tLast>out");
  test::NodeOf(net, "tSub").Subnet = std::make_unique<PnmlNet>(NetOf(kTwoBranches));
  return net;
}

TEST(Player, FirstFiresInTheOrderOfEnabling) { EXPECT_EQ(TraceOf(PlayNet(NetOf(kTwoBranches))), "tSplit tA1 tB1 tA2 tB2 tJoin"); }

TEST(Player, RandomRunDependsOnTheSeedAlone) {
  EXPECT_EQ(RandomTrace(2), "tSplit tB1 tB2 tA1 tA2 tJoin");
  EXPECT_EQ(RandomTrace(9), "tSplit tA1 tA2 tB1 tB2 tJoin");
}

TEST(Player, RandomReachesEveryInterleaving) {
  std::set<std::string> traces;
  for (std::uint64_t seed = 0; seed < 100; ++seed) traces.insert(RandomTrace(seed));
  EXPECT_EQ(traces.size(), 6U);
}

TEST(Player, EveryCaseStartsBeforeTheFirstFiring) {
  PlayOptions options;
  options.Cases = 3;
  options.MaxFirings = 0;
  const Account account = PlayNet(NetOf("in>t t>out"), options);
  EXPECT_EQ(account.Stopped, StopReason::Limit);
  ASSERT_EQ(account.Marking.size(), 1U);
  EXPECT_EQ(account.Marking[0].Place.Name, "in");
  EXPECT_EQ(account.Marking[0].Tokens, 3);
}

TEST(Player, EndlessNetStopsAtTheLimitExactly) {
  PlayOptions options;
  options.MaxFirings = 50;
  const Account account = PlayNet(NetOf("in>t1 t1>mid mid>t2 t2>back back>t3 t3>mid"), options);
  EXPECT_EQ(account.Stopped, StopReason::Limit);
  EXPECT_EQ(account.Firings, 50);
  EXPECT_EQ(account.Trace.size(), 50U);
}

TEST(Player, RunThatIsQuietAtTheLimitIsQuiet) {
  PlayOptions options;
  options.MaxFirings = 2;
  EXPECT_EQ(PlayNet(NetOf("in>t1 t1>mid mid>t2 t2>out"), options).Stopped, StopReason::Quiet);
}

TEST(Player, AutomaticLoopEndsInAnErrorThatNamesTheTransition) {
  PlayOptions options;
  options.Automatic = true;
  const Account account = PlayNet(NetOf("in>t1 t1>mid mid>tLoop tLoop>mid"), options);
  EXPECT_EQ(account.Stopped, StopReason::Error);
  EXPECT_NE(account.Error.find("\"tLoop\""), std::string::npos) << account.Error;
}

TEST(Player, MessageBoxOfAFiringEndsTheRunAsAnError) {
  LoadedNet net = BuildWorkflow(NetOf("in>t1 t1>mid mid>t2 t2>out"));
  net.Workflow->Transitions.Item("Transition1")->OutputType(vntProgrammed);
  const Account account = Player(net).Play();
  EXPECT_EQ(account.Stopped, StopReason::Error);
  EXPECT_EQ(account.Error, "Programmed output must be performed by a Action.");
}

TEST(Player, FiringsOfSubprocessesCarryTheKeysOfTheTransitionsAround) {
  const Account account = PlayNet(WithSubprocess());
  ASSERT_EQ(account.Trace.size(), 8U);
  EXPECT_EQ(account.Trace[0].Key, "Transition1");
  EXPECT_EQ(account.Trace[1].Key, "Transition1/Transition1");
  EXPECT_EQ(account.CasesFinished, 1);
  EXPECT_EQ(account.Firings, 8);
}

TEST(Player, RandomDrawsFromTheStacksOfSubprocessesToo) {
  PlayOptions options;
  options.Pick = Pick::Random;
  options.Cases = 2;
  options.MaxFirings = 3;
  std::set<std::string> thirds;
  for (options.Seed = 0; options.Seed < 50; ++options.Seed) thirds.insert(PlayNet(WithSubprocess(), options).Trace.at(2).Key);
  EXPECT_EQ(thirds, (std::set<std::string>{"Transition1", "Transition1/Transition2", "Transition1/Transition4"}));
}

TEST(Player, MarkingNamesPlacesInsideSubprocesses) {
  PlayOptions options;
  options.MaxFirings = 3;
  const Account account = PlayNet(WithSubprocess(), options);
  std::string keys;
  for (const auto& holding : account.Marking) keys += holding.Place.Key + ' ';
  EXPECT_EQ(keys, "Place1 Transition1/Place3 Transition1/Place4 ");
}

TEST(Player, InitialMarkingTakesThePlaceOfCases) {
  PnmlNet net = NetOf("in>t t>out");
  test::NodeOf(net, "in").InitialMarking = 2;
  PlayOptions options;
  options.FromMarking = true;
  const Account account = PlayNet(net, options);
  EXPECT_EQ(account.CasesStarted, 0);
  EXPECT_EQ(account.Firings, 2);
  EXPECT_TRUE(account.IsFinished());
}

TEST(Player, CasesThatWaitInOnePlaceEachAreNotMixed) {
  PlayOptions options;
  options.CaseTracking = true;
  options.Cases = 3;
  options.Pick = Pick::Random;
  const PnmlNet net = NetOf(
      "in>tSplit tSplit>a tSplit>b a>tJoin b>tJoin tJoin>out "
      "a>tAway tAway>a2 a2>tBack tBack>a b>tOff tOff>b2 b2>tOn tOn>b");
  for (options.Seed = 0; options.Seed < 20; ++options.Seed) {
    const Account account = PlayNet(net, options);
    EXPECT_EQ(account.CasesFinished, 3);
    EXPECT_TRUE(account.Marking.empty());
  }
}

TEST(Player, TokensWithoutCaseMoveUnderCaseTracking) {
  PnmlNet net = NetOf("in>t1 t1>mid mid>t2 t2>out");
  test::NodeOf(net, "in").InitialMarking = 2;
  PlayOptions options;
  options.CaseTracking = options.FromMarking = true;
  EXPECT_EQ(PlayNet(net, options).CasesFinished, 2);
}

TEST(Player, WatchEndsEvenARunOfAutomaticTransitions) {
  PlayOptions options;
  options.Automatic = true;
  const auto watch = [](const PlayCounts& pobjCounts) { return pobjCounts.Firings < 10; };
  const Account account = PlayNet(NetOf("in>t1 t1>mid mid>tLoop tLoop>mid"), options, watch);
  EXPECT_EQ(account.Stopped, StopReason::Limit);
  EXPECT_EQ(account.Firings, 10);
}

TEST(Player, GivesTheDesignerStateBack) {
  PlayNet(NetOf("in>t t>out"));
  EXPECT_FALSE(gobjWorkflow);
  EXPECT_EQ(gobjVantrel->CurrentX(), 200);
  EXPECT_EQ(gintUseMode, vntDesign);
}

}  // namespace

}  // namespace vantrel

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"

namespace vantrel::test {
namespace {

/// A net drawn at random, the same for the same seed.
struct RandomNet {
  RandomNet(unsigned plngSeed, TriggerTypes pTrigger, bool pblnTracking) : Net(std::make_shared<Workflow>()) {
    std::mt19937 draw(plngSeed);
    Net->CaseTracking = pblnTracking;
    gobjWorkflow = Net;
    for (int i = 0; i < 6; ++i) AddPlace(*Net);
    for (int i = 0; i < 8; ++i) {
      const auto transition = AddTransition(*Net);
      transition->TriggerType(pTrigger);
      for (unsigned inputs = draw() % 3 + 1; inputs > 0; --inputs) {
        Connect(Net->Places.Item(static_cast<std::int32_t>(draw() % 6 + 1)), transition);
      }
    }
  }

  std::vector<std::string> State() const {
    std::vector<std::string> state;
    for (const auto& transition : Net->FiringStack) state.push_back(transition->Key);
    for (const auto& transition : Net->Transitions) state.push_back(transition->Enabled() ? "enabled" : "not");
    for (const auto& place : Net->Places) {
      state.push_back(place->CaseEnabled() ? "marked" : "plain");
      for (const auto& token : place->Tokens()) state.push_back(token->Key + (token->CaseEnabled() ? "+" : "-"));
    }
    return state;
  }

  std::shared_ptr<Workflow> Net;
};

TEST(PutBack, EnablesAsArrivalsDoAndFiresNothing) {
  for (unsigned seed = 0; seed < 200; ++seed) {
    SCOPED_TRACE(seed);
    TestHost host;
    const bool tracking = seed % 2 == 1;
    const RandomNet played(seed, vntUser, tracking), read(seed, vntAutomatic, tracking);
    std::vector<std::shared_ptr<WorkCase>> cases = {nullptr, NewCase("A"), NewCase("B")};
    std::mt19937 draw(seed);
    for (int i = 0; i < 8; ++i) {
      const auto where = static_cast<std::int32_t>(draw() % 6 + 1);
      const auto& workCase = cases[draw() % cases.size()];
      gobjWorkflow = played.Net;
      PutToken(*played.Net->Places.Item(where), workCase);
      gobjWorkflow = read.Net;
      const auto place = read.Net->Places.Item(where);
      place->PutBack(read.Net->CreateToken(place, nullptr, workCase));
    }
    EXPECT_EQ(read.State(), played.State());
  }
}

TEST(PutBack, TellsNobody) {
  TestHost host;
  const auto end = AddPlace(*host.Net);
  host.Net->EndPlace(end);
  int heard = 0;
  const auto added = host.Net->OnTokenAdded.Connect([&](const auto&, const auto&) { ++heard; });
  const auto finished = host.Net->OnCaseFinished.Connect([&](const auto&) { ++heard; });
  end->PutBack(host.Net->CreateToken(end));
  EXPECT_EQ(heard, 0);
  EXPECT_EQ(end->TokenCount(), 1);
  EXPECT_EQ(end->Tokens().Count(), 1) << "a token of a finished case stays, history or not: it was stored there";
}

TEST(Consumption, MarksTheTokenAsChanged) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  const auto transition = AddTransition(*host.Net);
  Connect(place, transition);
  Connect(transition, AddPlace(*host.Net));
  const auto token = PutToken(*place);
  token->Dirty = false;
  transition->Fire();
  EXPECT_TRUE(token->Dirty) << "or its consumption would never be stored";
}

}  // namespace
}  // namespace vantrel::test

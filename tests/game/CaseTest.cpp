#include <array>
#include <bit>

#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"

namespace vantrel::test {
namespace {

class TwoCases : public testing::Test {
 protected:
  TwoCases() {
    Host.Net->CaseTracking = true;
    Connect(Start, Split);
    for (const auto& branch : {Left, Right}) {
      Connect(Split, branch);
      Connect(branch, Join);
    }
    Connect(Join, Joined);
    Connect(Joined, Rework);
    Connect(Rework, Start);
  }

  std::array<int, 4> MarkingOf(const std::shared_ptr<WorkCase>& pobjCase) const {
    std::array<int, 4> counts{};
    const std::array<const Place*, 4> places = {Start.get(), Left.get(), Right.get(), Joined.get()};
    for (std::size_t i = 0; i < places.size(); ++i) {
      for (const auto& token : places[i]->Tokens()) counts[i] += token->WorkCase == pobjCase;
    }
    return counts;
  }

  void FireByHand(Transition& pobjTransition, const std::shared_ptr<WorkCase>& pobjCase) {
    Host.Answers = {pobjCase->Name};
    pobjTransition.PullTrigger();
  }

  TestHost Host;
  std::shared_ptr<Place> Start = AddPlace(*Host.Net), Left = AddPlace(*Host.Net), Right = AddPlace(*Host.Net), Joined = AddPlace(*Host.Net);
  std::shared_ptr<Transition> Split = AddTransition(*Host.Net), Join = AddTransition(*Host.Net), Rework = AddTransition(*Host.Net);
  const std::shared_ptr<WorkCase> A = NewCase("A"), B = NewCase("B");
};

TEST_F(TwoCases, EveryInterleavingKeepsTheirTokensApart) {
  const std::array<Transition*, 4> road = {Split.get(), Join.get(), Rework.get(), Split.get()};
  const std::array<std::array<int, 4>, 5> expected = {{{1, 0, 0, 0}, {0, 1, 1, 0}, {0, 0, 0, 1}, {1, 0, 0, 0}, {0, 1, 1, 0}}};
  for (unsigned turns = 0; turns < 256; ++turns) {
    if (std::popcount(turns) != 4) continue;
    SCOPED_TRACE(turns);
    for (const auto& place : Host.Net->Places) place->Tokens().Clear();
    std::array<std::size_t, 2> done{};
    PutToken(*Start, A);
    PutToken(*Start, B);
    for (unsigned turn = 0; turn < 8; ++turn) {
      const std::size_t who = turns >> turn & 1;
      ASSERT_TRUE(road[done[who]]->Enabled());
      FireByHand(*road[done[who]++], who ? B : A);
      ASSERT_EQ(MarkingOf(A), expected[done[0]]);
      ASSERT_EQ(MarkingOf(B), expected[done[1]]);
    }
  }
}

TEST_F(TwoCases, ShownWorkflowDecidesWhetherCasesAreTracked) {
  const auto shown = std::make_shared<Workflow>();
  gobjWorkflow = shown;
  PutToken(*Left, A);
  PutToken(*Right, B);

  EXPECT_TRUE(Join->Enabled());
}

}  // namespace
}  // namespace vantrel::test
